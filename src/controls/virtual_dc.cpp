#include "controls/virtual_dc.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextOption>
#include <QWidget>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr int TabLength = 20; // average letters
constexpr int LargestSize = 16384;

// Copies pixels without mixing. What the source lacks is left out; nothing is scaled.
void Blit(DeviceContext target, const QImage& source, const QRect& from, const QPoint& to) {
    const qreal scale = source.devicePixelRatio();
    const QRect all(QPoint(), source.deviceIndependentSize().toSize());
    const QRect part = from.intersected(all);
    if (target == nullptr || part.isEmpty())
        return;
    QPainter painter(target);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRectF(to + (part.topLeft() - from.topLeft()), part.size()), source,
                      QRectF(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale));
}

} // namespace

DeviceContext VirtualDC::Create(DeviceContext hDC, int surfaceWidth, int surfaceHeight) {
    Destroy();
    if (surfaceWidth < 1 || surfaceHeight < 1 || surfaceWidth > LargestSize ||
        surfaceHeight > LargestSize)
        return nullptr;
    const qreal scale = hDC == nullptr ? 1.0 : hDC->devicePixelRatioF();
    bitmap = QImage((QSizeF(surfaceWidth, surfaceHeight) * scale).toSize(), QImage::Format_RGB32);
    if (bitmap.isNull())
        return nullptr;
    bitmap.setDevicePixelRatio(scale);
    hDCRef = hDC;
    width = surfaceWidth;
    height = surfaceHeight;
    if (const auto* widget = dynamic_cast<const QWidget*>(hDC)) {
        const auto value = [](const QColor& color) {
            return static_cast<ColorValue>(color.red() | color.green() << 8 | color.blue() << 16);
        };
        font = widget->font();
        ForeColor = value(widget->palette().color(QPalette::WindowText));
        BackColor = value(widget->palette().color(QPalette::Window));
    }
    Cls();
    return &bitmap;
}

void VirtualDC::Destroy() {
    bitmap = QImage();
    hDCRef = nullptr;
    HasLastArea = false;
}

void VirtualDC::Cls() {
    bitmap.fill(palette::To_Color(BackColor));
}

void VirtualDC::FillArea(int Left, int Top, int Right, int Bottom, ColorValue Color) {
    if (!IsCreated())
        return;
    QPainter painter(&bitmap);
    painter.fillRect(QRect(QPoint(Left, Top), QPoint(Right - 1, Bottom - 1)),
                     palette::To_Color(Color));
}

void VirtualDC::Paint(DeviceContext hDC, int X, int Y, int copyWidth, int copyHeight, int SrcX,
                      int SrcY) {
    if (!IsCreated())
        return;
    const QSize size(copyWidth < 0 ? width : copyWidth, copyHeight < 0 ? height : copyHeight);
    Blit(hDC == nullptr ? hDCRef : hDC, bitmap, QRect(QPoint(SrcX, SrcY), size), QPoint(X, Y));
}

void VirtualDC::PrintText(const QString& Text, int Left, int Top, int Right, int Bottom,
                          int Format) {
    if (!IsCreated())
        return;
    const QRect place(QPoint(Left, Top), QPoint(Right - 1, Bottom - 1));
    QPainter painter(&bitmap);
    painter.setFont(font);
    painter.setClipRect(place);
    QTextOption option;
    option.setAlignment(static_cast<Qt::Alignment>(Format) &
                        (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask));
    option.setWrapMode((Format & Qt::TextWordWrap) != 0 ? QTextOption::WordWrap
                                                        : QTextOption::ManualWrap);
    option.setTabStopDistance(TabLength * painter.fontMetrics().averageCharWidth());
    if (TextBackStyle == BackStyle::Opaque)
        painter.fillRect(painter.boundingRect(QRectF(place), Text, option),
                         palette::To_Color(BackColor));
    painter.setPen(palette::To_Color(ForeColor));
    painter.drawText(QRectF(place), Text, option);
}

int VirtualDC::FontHeight() const {
    return IsCreated() ? QFontMetrics(font, &bitmap).height() : 0;
}

void VirtualDC::SetFontAttributes(const FontAttributes& attributes) {
    font.setBold(attributes.Bold);
    font.setItalic(attributes.Italic);
    font.setUnderline(attributes.Underline);
    font.setStrikeOut(attributes.Strikethru);
}

void VirtualDC::DRAWLine(int X1, int Y1, int X2, int Y2, ColorValue Color) {
    if (!IsCreated())
        return;
    const std::int64_t dx = std::int64_t{X2} - X1;
    const std::int64_t dy = std::int64_t{Y2} - Y1;
    const std::int64_t steps = std::max(std::abs(dx), std::abs(dy));
    QPainter painter(&bitmap);
    for (std::int64_t i = 0; i < std::min<std::int64_t>(steps, 4 * LargestSize); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(steps);
        painter.fillRect(X1 + qRound(part * static_cast<double>(dx)),
                         Y1 + qRound(part * static_cast<double>(dy)), 1, 1,
                         palette::To_Color(Color));
    }
}

void VirtualDC::DrawRect(int Left, int Top, int Right, int Bottom, ColorValue Color) {
    FillArea(Left, Top, Right, Bottom, Color);
}

void VirtualDC::DrawPoint(int X, int Y, ColorValue Color) {
    FillArea(X, Y, X + 1, Y + 1, Color);
}

void VirtualDC::CopyEntireAreaToHDC(DeviceContext hDC) {
    CopyAreaToHDC(hDC, 0, 0, 0, 0, width, height);
}

void VirtualDC::CopyAreaFromHDC(DeviceContext hDC, int SrcX, int SrcY, int X, int Y, int copyWidth,
                                int copyHeight) {
    const auto* source = dynamic_cast<const QImage*>(hDC);
    if (IsCreated() && source != nullptr)
        Blit(&bitmap, *source, QRect(SrcX, SrcY, copyWidth, copyHeight), QPoint(X, Y));
}

void VirtualDC::CopyAreaToHDC(DeviceContext hDC, int X, int Y, int SrcX, int SrcY, int copyWidth,
                              int copyHeight) {
    if (!IsCreated())
        return;
    lastArea = {QPoint(SrcX, SrcY), QPoint(X, Y), QSize(copyWidth, copyHeight)};
    HasLastArea = true;
    CopyLastArea(hDC);
}

void VirtualDC::CopyLastArea(DeviceContext hDC) {
    if (HasLastArea)
        Blit(hDC, bitmap, QRect(lastArea.Source, lastArea.Size), lastArea.Target);
}

void VirtualDC::LoadPicture(const QImage& picture, int X, int Y) {
    if (!IsCreated())
        return;
    QPainter painter(&bitmap);
    painter.drawImage(X, Y, picture);
}
