// The alignment guides of the designer: lines through a piece and the pieces that it is in line with.
#pragma once

#include <QLine>
#include <QRect>

#include <vector>

namespace tarvo {

// One line, across `lienzo`, for each edge or middle of `movida` that one of `otras` shares to the pixel.
std::vector<QLine> GuiasDe(const QRect &movida, const std::vector<QRect> &otras, const QSize &lienzo);

} // namespace tarvo
