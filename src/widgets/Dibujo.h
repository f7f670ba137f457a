#pragma once

#include "widgets/Iconos.h"

#include <QPainterPath>
#include <QStringView>

#include <span>

class QPainter;

/// A path from its text: commands and numbers with a space between every two.
///
///     M x y              start            L x y            line
///     C x y x y x y      Bézier curve     Z                close
///     O x y r            circle           R x y w h r      rectangle with round corners
QPainterPath camino(QStringView texto);

/// The emblem of the program: an open umbrella that shelters a coin, on a blue tile. Its colours do
/// not depend on the palette.
void dibujarEmblema(QPainter &pintor, const QRectF &lugar);

/// What a stroke or patch of an icon is for; the palette decides on its colour.
enum class Tono { Tinta, Suave, Acento, AcentoSuave, Verde, Rojo, Ambar, AmbarSuave, Blanco };

/// One stroke (or patch, when `grosor` is 0) of an icon on a square of 24 units.
struct Trazo
{
    Tono tono;
    double grosor;
    QStringView camino; ///< see above
};

/// The drawing of an icon, from the back to the front.
std::span<const Trazo> dibujo(Icono cual);
