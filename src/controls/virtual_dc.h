// An off-screen surface: a form draws on it without flicker and then copies it to the screen in
// one go. Coordinates are logical pixels; the surface has as many device pixels as the context
// that it was made for. Right and Bottom are just outside.
#pragma once

#include "controls/back_style.h"
#include "controls/palette.h"

#include <QFont>
#include <QImage>

// A picture, or a widget while it handles its paint event and no painter is at work on it.
using DeviceContext = QPaintDevice*;

struct FontAttributes {
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethru = false;
};

class VirtualDC {
public:
    VirtualDC() = default;
    VirtualDC(const VirtualDC&) = delete;
    VirtualDC& operator=(const VirtualDC&) = delete;

    bool IsCreated() const { return !bitmap.isNull(); }
    // Colours and font come from a widget. hDC has to outlive the surface. Null when there can be
    // no surface of that size.
    DeviceContext Create(DeviceContext hDC, int surfaceWidth, int surfaceHeight);
    void Destroy();

    DeviceContext hdc() { return IsCreated() ? &bitmap : nullptr; }
    // The device pixels.
    QImage& Bitmap() { return bitmap; }
    int Width() const { return width; }
    int Height() const { return height; }

    // Fills all of it with the background colour.
    void Cls();
    void FillArea(int Left, int Top, int Right, int Bottom, ColorValue Color);
    // A null context is the one the surface was made for; a negative size is the surface's own.
    void Paint(DeviceContext hDC, int X, int Y, int copyWidth, int copyHeight, int SrcX, int SrcY);
    // Format: a sum of Qt::TextFlag and Qt::Alignment values.
    void PrintText(const QString& Text, int Left, int Top, int Right, int Bottom, int Format);
    // 0 before the surface is created.
    int FontHeight() const;
    const QFont& Font() const { return font; }
    void Set_Font(const QFont& newFont) { font = newFont; }
    void SetFontAttributes(const FontAttributes& attributes);
    bool FontBold() const { return font.bold(); }
    bool FontItalic() const { return font.italic(); }
    bool FontUnderline() const { return font.underline(); }
    bool FontStrikethru() const { return font.strikeOut(); }
    void Set_FontBold(bool on) { font.setBold(on); }
    void Set_FontItalic(bool on) { font.setItalic(on); }
    void Set_FontUnderline(bool on) { font.setUnderline(on); }
    void Set_FontStrikethru(bool on) { font.setStrikeOut(on); }

    // Of text and its background.
    ColorValue ForeColor = palette::Black;
    ColorValue BackColor = palette::White;
    BackStyle TextBackStyle = BackStyle::Opaque;

    // One pixel wide; the end point itself is left out.
    void DRAWLine(int X1, int Y1, int X2, int Y2, ColorValue Color);
    // Filled.
    void DrawRect(int Left, int Top, int Right, int Bottom, ColorValue Color);
    void DrawPoint(int X, int Y, ColorValue Color);

    void CopyEntireAreaToHDC(DeviceContext hDC);
    // Only from a picture: nothing else can be read.
    void CopyAreaFromHDC(DeviceContext hDC, int SrcX, int SrcY, int X, int Y, int copyWidth,
                         int copyHeight);
    void CopyAreaToHDC(DeviceContext hDC, int X, int Y, int SrcX, int SrcY, int copyWidth,
                       int copyHeight);
    // The last copy to a context again.
    void CopyLastArea(DeviceContext hDC);
    // At its own size.
    void LoadPicture(const QImage& picture, int X, int Y);

private:
    struct Area {
        QPoint Source;
        QPoint Target;
        QSize Size;
    };

    QImage bitmap;
    int width = 0;
    int height = 0;
    QFont font;
    DeviceContext hDCRef = nullptr;
    bool HasLastArea = false;
    Area lastArea;
};
