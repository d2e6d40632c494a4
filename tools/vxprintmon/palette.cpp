// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "palette.h"

#include <array>
#include <limits>

namespace {

// The 16 colours as xterm shows them. Terminals let their users change them.
constexpr std::array<QRgb, 16> basicColours{
    0xff000000, 0xffcd0000, 0xff00cd00, 0xffcdcd00, 0xff0000ee, 0xffcd00cd, 0xff00cdcd, 0xffe5e5e5,
    0xff7f7f7f, 0xffff0000, 0xff00ff00, 0xffffff00, 0xff5c5cff, 0xffff00ff, 0xff00ffff, 0xffffffff,
};

// Of the 256 colours, 16 to 231 are a cube with six steps along each side, and 232 to 255 greys.
constexpr int firstOfCube = 16;
constexpr std::array<int, 6> steps{0, 95, 135, 175, 215, 255};
constexpr int firstGrey = 232;
constexpr int greys = 24;

QRgb colourOf(int index)
{
    if (index < firstOfCube)
        return basicColours.at(static_cast<std::size_t>(index));
    if (index >= firstGrey) {
        const int level = 8 + 10 * (index - firstGrey);
        return qRgb(level, level, level);
    }
    const auto place = static_cast<std::size_t>(index - firstOfCube);
    constexpr std::size_t side = steps.size();
    return qRgb(steps.at(place / (side * side)), steps.at(place / side % side),
                steps.at(place % side));
}

/// How different two colours look, by the weights of red, green and blue in what people see.
int difference(QRgb left, QRgb right)
{
    const int red = qRed(left) - qRed(right);
    const int green = qGreen(left) - qGreen(right);
    const int blue = qBlue(left) - qBlue(right);
    return 3 * red * red + 6 * green * green + blue * blue;
}

int nearest(QRgb colour, int first, int last)
{
    int best = first;
    int least = std::numeric_limits<int>::max();
    for (int index = first; index <= last; ++index) {
        const int found = difference(colour, colourOf(index));
        if (found < least) {
            best = index;
            least = found;
        }
    }
    return best;
}

} // namespace

palette::Depth palette::depthOf(const QByteArray& colorTerm, const QByteArray& term)
{
    if (colorTerm == "truecolor" || colorTerm == "24bit")
        return Depth::AllColours;
    return term.contains("256color") ? Depth::Colours256 : Depth::Colours16;
}

QString palette::background(QRgb colour, Depth depth)
{
    switch (depth) {
    case Depth::Colours16: {
        constexpr int dark = 40;
        constexpr int bright = 100;
        const int index = nearest(colour, 0, firstOfCube - 1);
        return QString::number(index < 8 ? dark + index : bright + index - 8);
    }
    case Depth::Colours256:
        // Not the first 16, which the user may have changed.
        return QStringLiteral("48;5;%1").arg(nearest(colour, firstOfCube, firstGrey + greys - 1));
    case Depth::AllColours:
        break;
    }
    return QStringLiteral("48;2;%1;%2;%3").arg(qRed(colour)).arg(qGreen(colour)).arg(qBlue(colour));
}
