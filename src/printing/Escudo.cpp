#include "printing/Escudo.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace impreso {

/// The drawing's own units: 100 wide, 120 high, the shield below the crown.
static constexpr double Ancho = 100;
static constexpr double Alto = 120;

static constexpr QRgb Azur = 0xff1f4e8c;
static constexpr QRgb Plata = 0xfff4f6f8;
static constexpr QRgb Sombra = 0xffc3ccd6;
static constexpr QRgb Oro = 0xffe0b030;
static constexpr QRgb Linea = 0xff1b3a5c;

static QPainterPath campo()
{
    QPainterPath p(QPointF(12, 34));
    p.lineTo(88, 34);
    p.lineTo(88, 78);
    p.cubicTo(88, 98, 68, 108, 50, 118);
    p.cubicTo(32, 108, 12, 98, 12, 78);
    p.closeSubpath();
    return p;
}

static QPainterPath corona()
{
    QPainterPath p(QPointF(14, 30));
    p.lineTo(10, 12);
    // five merlons, each as wide as the gap beside it
    constexpr double paso = 80.0 / 9;
    for (int i = 0; i < 9; ++i) {
        const double y = i % 2 == 0 ? 3 : 12;
        p.lineTo(10 + i * paso, y);
        p.lineTo(10 + (i + 1) * paso, y);
    }
    p.lineTo(90, 12);
    p.lineTo(86, 30);
    p.closeSubpath();
    return p;
}

static QPainterPath sol()
{
    QPainterPath p;
    p.addEllipse(QPointF(50, 50), 7, 7);
    for (int rayo = 0; rayo < 12; ++rayo) {
        QTransform giro;
        giro.translate(50, 50).rotate(rayo * 30);
        p.addPolygon(giro.map(QPolygonF({{-1.6, -8.6}, {1.6, -8.6}, {0, -13.5}, {-1.6, -8.6}})));
    }
    return p;
}

static QPainterPath monte(double cima, double altura, double base)
{
    QPainterPath p(QPointF(cima - base, 92));
    p.lineTo(cima, altura);
    p.lineTo(cima + base, 92);
    p.closeSubpath();
    return p;
}

/// The side of a peak that the sun does not reach.
static QPainterPath ladera(double cima, double altura, double base)
{
    QPainterPath p(QPointF(cima, altura));
    p.lineTo(cima + base * 0.18, altura + 12);
    p.lineTo(cima - base * 0.06, altura + 20);
    p.lineTo(cima + base * 0.12, 92);
    p.lineTo(cima + base, 92);
    p.closeSubpath();
    return p;
}

static QPainterPath onda(double y)
{
    QPainterPath p(QPointF(4, y));
    for (double x = 4; x < 96; x += 23) {
        p.cubicTo(x + 4, y - 5, x + 8, y - 5, x + 11.5, y);
        p.cubicTo(x + 15, y + 5, x + 19, y + 5, x + 23, y);
    }
    return p;
}

static void dibujarMontes(QPainter &pintor)
{
    for (const auto &[cima, altura, base] : {std::array{35.0, 66.0, 28.0}, {66.0, 60.0, 28.0}}) {
        pintor.fillPath(monte(cima, altura, base), QColor(Plata));
        pintor.fillPath(ladera(cima, altura, base), QColor(Sombra));
    }
}

static void dibujarRio(QPainter &pintor)
{
    pintor.fillRect(QRectF(4, 88, 92, 32), QColor(Azur));
    for (const double y : {93.0, 101.0, 109.0})
        pintor.strokePath(onda(y), QPen(QColor(Plata), 3));
}

void dibujarEscudo(QPainter &pintor, const QRectF &lugar)
{
    const double escala = std::min(lugar.width() / Ancho, lugar.height() / Alto);
    pintor.save();
    pintor.translate(lugar.center());
    pintor.scale(escala, escala);
    pintor.translate(-Ancho / 2, -Alto / 2);

    const QPen contorno(QColor(Linea), 2.2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    pintor.save();
    pintor.setClipPath(campo());
    pintor.fillPath(campo(), QColor(Azur));
    pintor.fillPath(sol(), QColor(Oro));
    dibujarMontes(pintor);
    dibujarRio(pintor);
    pintor.restore();
    pintor.strokePath(campo(), contorno);
    pintor.fillPath(corona(), QColor(Oro));
    pintor.strokePath(corona(), contorno);
    pintor.restore();
}

} // namespace impreso
