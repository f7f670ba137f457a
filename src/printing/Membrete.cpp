#include "printing/Impreso.h"
#include "printing/Piezas.h"

#include <QPainterPath>

#include <algorithm>
#include <array>

namespace impreso {
namespace {

/// The drawing's own units: 100 wide, 120 high, the shield below the crown.
constexpr double AnchoEscudo = 100;
constexpr double AltoEscudo = 120;

constexpr QRgb Azur = 0xff1f4e8c;
constexpr QRgb Plata = 0xfff4f6f8;
constexpr QRgb Sombra = 0xffc3ccd6;
constexpr QRgb Oro = 0xffe0b030;
constexpr QRgb Linea = 0xff1b3a5c;

QPainterPath campo()
{
    QPainterPath p(QPointF(12, 34));
    p.lineTo(88, 34);
    p.lineTo(88, 78);
    p.cubicTo(88, 98, 68, 108, 50, 118);
    p.cubicTo(32, 108, 12, 98, 12, 78);
    p.closeSubpath();
    return p;
}

QPainterPath corona()
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

QPainterPath sol()
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

QPainterPath monte(double cima, double altura, double base)
{
    QPainterPath p(QPointF(cima - base, 92));
    p.lineTo(cima, altura);
    p.lineTo(cima + base, 92);
    p.closeSubpath();
    return p;
}

/// The side of a peak that the sun does not reach.
QPainterPath ladera(double cima, double altura, double base)
{
    QPainterPath p(QPointF(cima, altura));
    p.lineTo(cima + base * 0.18, altura + 12);
    p.lineTo(cima - base * 0.06, altura + 20);
    p.lineTo(cima + base * 0.12, 92);
    p.lineTo(cima + base, 92);
    p.closeSubpath();
    return p;
}

QPainterPath onda(double y)
{
    QPainterPath p(QPointF(4, y));
    for (double x = 4; x < 96; x += 23) {
        p.cubicTo(x + 4, y - 5, x + 8, y - 5, x + 11.5, y);
        p.cubicTo(x + 15, y + 5, x + 19, y + 5, x + 23, y);
    }
    return p;
}

void dibujarMontes(QPainter &pintor)
{
    for (const auto &[cima, altura, base] : {std::array{35.0, 66.0, 28.0}, {66.0, 60.0, 28.0}}) {
        pintor.fillPath(monte(cima, altura, base), QColor(Plata));
        pintor.fillPath(ladera(cima, altura, base), QColor(Sombra));
    }
}

void dibujarRio(QPainter &pintor)
{
    pintor.fillRect(QRectF(4, 88, 92, 32), QColor(Azur));
    for (const double y : {93.0, 101.0, 109.0})
        pintor.strokePath(onda(y), QPen(QColor(Plata), 3));
}

/// The arms of Varlenda: azure, two silver peaks under a golden sun, over a river; a mural crown.
void dibujarEscudo(QPainter &pintor, const QRectF &lugar)
{
    const double escala = std::min(lugar.width() / AnchoEscudo, lugar.height() / AltoEscudo);
    pintor.save();
    pintor.translate(lugar.center());
    pintor.scale(escala, escala);
    pintor.translate(-AnchoEscudo / 2, -AltoEscudo / 2);

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

constexpr QStringView DireccionWeb = u"www.varlenda.example";

constexpr Par Hacienda{u"Varlendako Foru Aldundia", u"Diputación Foral de Varlenda"};
constexpr Par Impuesto{u"Aseguru Primen gaineko Zerga", u"Impuesto sobre las Primas de Seguros"};
constexpr Par Modelo{u"Eredua /", u"Modelo"};

constexpr double Arriba = -AltoMembrete;
constexpr Caja CajaEscudo{10, Arriba, 14, 16.5};
constexpr Caja CajaHacienda{27, Arriba, 72, 9};
constexpr Caja CajaDepartamento{27, Arriba + 10, 72, 6.2};
constexpr Caja CajaImpuesto{100, Arriba, 70, 9};
constexpr Caja CajaWeb{100, Arriba + 13, 70, 3.2};
constexpr Caja CajaModelo{174, Arriba, 26, 16.5};

constexpr Estilo EstiloTitular{Letra::Times, 12, true, Tinta::Oscura};

void numeroModelo(Lienzo &lienzo, const QString &modelo)
{
    lienzo.fondo(CajaModelo, Tinta::Oscura);
    const Caja dentro = CajaModelo.dentro(1.5, 1);
    parEnLinea(lienzo, {dentro.x, dentro.y, dentro.ancho, 3.2}, Modelo,
               EstiloEtiqueta.en(Tinta::Blanco), Qt::AlignHCenter);
    lienzo.letra({Letra::Arial, 28, true, Tinta::Blanco});
    lienzo.texto({dentro.x, dentro.y + 3.2, dentro.ancho, dentro.alto - 3.2}, modelo,
                 Qt::AlignHCenter);
}

} // namespace

void dibujarMembrete(Lienzo &lienzo, const ValoresImpreso &impreso, const QString &modelo)
{
    dibujarEscudo(lienzo.pintor(), CajaEscudo.rect());
    parApilado(lienzo, CajaHacienda, Hacienda, EstiloTitular);
    parApilado(lienzo, CajaDepartamento, {impreso.haciendaEuskera, impreso.haciendaCastellano},
               EstiloEtiqueta.de(8));
    parApilado(lienzo, CajaImpuesto, Impuesto, EstiloTitular, Qt::AlignRight);
    lienzo.letra(EstiloEtiqueta.de(8).normal());
    lienzo.texto(CajaWeb, DireccionWeb.toString(), Qt::AlignRight);
    numeroModelo(lienzo, modelo);
}

} // namespace impreso
