#pragma once

#include "widgets/Iconos.h"

#include <QStringView>

#include <span>

/// What a stroke or patch of an icon is for; the palette decides on its colour.
enum class Tono { Tinta, Suave, Acento, AcentoSuave, Verde, Rojo, Ambar, AmbarSuave, Blanco };

/// One stroke (or patch, when `grosor` is 0) of an icon on a square of 24 units.
struct Trazo
{
    Tono tono;
    double grosor;
    QStringView camino; ///< see Camino.h
};

/// The drawing of an icon, from the back to the front.
std::span<const Trazo> dibujo(Icono cual);
