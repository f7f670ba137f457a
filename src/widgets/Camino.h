#pragma once

#include <QPainterPath>
#include <QStringView>

/// A path from its text: commands and numbers with a space between every two.
///
///     M x y              start            L x y            line
///     C x y x y x y      Bézier curve     Z                close
///     O x y r            circle           R x y w h r      rectangle with round corners
QPainterPath camino(QStringView texto);
