#pragma once

class QPainter;
class QRectF;

namespace impreso {

/// The arms of Varlenda: azure, two silver peaks under a golden sun, over a river; a mural crown.
void dibujarEscudo(QPainter &pintor, const QRectF &lugar);

} // namespace impreso
