#pragma once

#include <QStringView>

namespace impreso {

class Lienzo;

/// Stamps the mark of a copy (Copias.h) at its place on the page, translucent, over what is there.
void dibujarMarca(Lienzo &lienzo, QStringView copia);

} // namespace impreso
