#include "controls/aa_line.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace {

constexpr double SubStep = 0.25;
constexpr double SubStepsPerPixel = 4.0;
constexpr double OnBoundary = 0.001;
constexpr double FarthestEnd = 1e9; // pixels; no surface is as large

// What one sub-step gives to a pixel on one side of the line. Major is the axis along which the
// line is longer.
struct CoverageRecord {
    double MajorPosition = 0;
    double MinorPosition = 0; // of the pixel, a whole number
    double Alpha = 0;         // share, 0..1
};

struct Walk {
    bool MajorIsY = false;
    double MajorStart = 0;
    double MajorEnd = 0;
    double MinorStart = 0;
    double Slope = 0; // minor for each major
};

Walk Plan_Walk(double x1, double y1, double x2, double y2) {
    Walk walk;
    walk.MajorIsY = std::abs(y2 - y1) >= std::abs(x2 - x1);
    std::pair<double, double> start(x1, y1);
    std::pair<double, double> end(x2, y2);
    if (walk.MajorIsY) {
        std::swap(start.first, start.second);
        std::swap(end.first, end.second);
    }
    if (start.first > end.first)
        std::swap(start, end);
    walk.MajorStart = start.first;
    walk.MajorEnd = end.first;
    walk.MinorStart = start.second;
    walk.Slope = (end.second - start.second) / (end.first - start.first);
    return walk;
}

// A position on the boundary of two cells counts to the lower one.
int Cell_Of(double position) {
    return static_cast<int>(std::floor(position - OnBoundary)) + 1;
}

std::vector<CoverageRecord> Collect_Coverage(const Walk& walk, const QSize& size) {
    const double majorSize = walk.MajorIsY ? size.height() : size.width();
    // The steps that fall outside need not be walked.
    const double first = std::max(0.0, std::ceil((-1.0 - walk.MajorStart) / SubStep));
    const double last =
        std::floor((std::min(walk.MajorEnd, majorSize + 1.0) - walk.MajorStart) / SubStep);
    std::vector<CoverageRecord> nearSide;
    std::vector<CoverageRecord> farSide;
    for (double step = first; step <= last; step += 1.0) {
        const double along = step * SubStep;
        const double major = walk.MajorStart + along;
        const double minor = walk.MinorStart + along * walk.Slope;
        const double whole = std::floor(minor);
        nearSide.push_back({major, whole, 1.0 - (minor - whole)});
        farSide.push_back({major, whole + 1.0, minor - whole});
    }
    nearSide.insert(nearSide.end(), farSide.begin(), farSide.end());
    return nearSide;
}

ColorValue To_ColorValue(QRgb pixel) {
    return static_cast<ColorValue>(qRed(pixel)) | static_cast<ColorValue>(qGreen(pixel)) << 8 |
           static_cast<ColorValue>(qBlue(pixel)) << 16;
}

bool Is_Far(double position) {
    return !(std::abs(position) <= FarthestEnd);
}

} // namespace

ColorValue BlendColors(ColorValue ForeColor, ColorValue BackColor, int Alpha) {
    const int alpha = std::clamp(Alpha, 0, 255);
    const QColor fore = palette::To_Color(ForeColor);
    const QColor back = palette::To_Color(BackColor);
    const auto mix = [alpha](int front, int behind) {
        return static_cast<ColorValue>((front * alpha + behind * (255 - alpha) + 127) / 255);
    };
    return mix(fore.red(), back.red()) | mix(fore.green(), back.green()) << 8 |
           mix(fore.blue(), back.blue()) << 16;
}

void DrawAALine(QImage& surface, double X1, double Y1, double X2, double Y2, ColorValue Color,
                double Darkness) {
    if (surface.isNull() || Is_Far(X1) || Is_Far(Y1) || Is_Far(X2) || Is_Far(Y2))
        return;
    if (X1 == X2 && Y1 == Y2)
        return;
    const Walk walk = Plan_Walk(X1, Y1, X2, Y2);
    std::map<std::pair<int, int>, double> cover; // by x and y
    for (const CoverageRecord& record : Collect_Coverage(walk, surface.size())) {
        const int major = Cell_Of(record.MajorPosition);
        const int minor = static_cast<int>(record.MinorPosition);
        cover[walk.MajorIsY ? std::pair(minor, major) : std::pair(major, minor)] += record.Alpha;
    }
    for (const auto& [at, coverage] : cover) {
        if (!surface.valid(at.first, at.second))
            continue;
        const double alpha = coverage * 255.0 / SubStepsPerPixel * (1.0 + Darkness);
        const ColorValue old = To_ColorValue(surface.pixel(at.first, at.second));
        const ColorValue mixed =
            BlendColors(Color, old, static_cast<int>(std::lround(std::min(alpha, 255.0))));
        surface.setPixelColor(at.first, at.second, palette::To_Color(mixed));
    }
}
