#pragma once

class QPainter;
class QRectF;

/// The emblem of the program: an open umbrella that shelters a coin, on a blue tile. Its colours do
/// not depend on the palette.
void dibujarEmblema(QPainter &pintor, const QRectF &lugar);
