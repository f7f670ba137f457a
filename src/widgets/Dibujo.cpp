#include "widgets/Dibujo.h"

#include <QLinearGradient>
#include <QList>
#include <QPainter>

static void anadir(QPainterPath &p, QChar orden, const QList<double> &n)
{
    switch (orden.unicode()) {
    case u'M':
        return p.moveTo(n[0], n[1]);
    case u'L':
        return p.lineTo(n[0], n[1]);
    case u'C':
        return p.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
    case u'O':
        return p.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
    case u'R':
        return p.addRoundedRect(n[0], n[1], n[2], n[3], n[4], n[4]);
    default:
        return p.closeSubpath();
    }
}

static int cuantos(QChar orden)
{
    switch (orden.unicode()) {
    case u'C':
        return 6;
    case u'R':
        return 5;
    case u'O':
        return 3;
    case u'Z':
        return 0;
    default:
        return 2;
    }
}

QPainterPath camino(QStringView texto)
{
    QPainterPath p;
    const auto piezas = texto.split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < piezas.size();) {
        const QChar orden = piezas[i++].front();
        QList<double> numeros;
        for (int faltan = cuantos(orden); faltan > 0 && i < piezas.size(); --faltan)
            numeros.append(piezas[i++].toDouble());
        Q_ASSERT(numeros.size() == cuantos(orden));
        anadir(p, orden, numeros);
    }
    return p;
}

/// The drawing's own units: a square of this side.
static constexpr double Lado = 24;

static constexpr QRgb AzulClaro = 0xff2f7fb8;
static constexpr QRgb AzulOscuro = 0xff173f6b;
static constexpr QRgb Oro = 0xfff2b632;
static constexpr QRgb Blanco = 0xffffffff;
static constexpr QRgb Sombra = 0xffcfe3f2;

static void dibujarFondo(QPainter &pintor)
{
    QLinearGradient fondo(0, 0, 0, Lado);
    fondo.setColorAt(0, QColor::fromRgba(AzulClaro));
    fondo.setColorAt(1, QColor::fromRgba(AzulOscuro));
    pintor.fillPath(camino(u"R 0.5 0.5 23 23 5.5"), fondo);
}

static void dibujarParaguas(QPainter &pintor)
{
    const QPainterPath tela
        = camino(u"M 3 12.5 C 3 7 7 3.6 12 3.6 C 17 3.6 21 7 21 12.5 C 20 11.2 16.8 11.2 15.8 12.5 "
                 u"C 14.6 11.2 9.4 11.2 8.2 12.5 C 7.2 11.2 4 11.2 3 12.5 Z");
    const QPainterPath gajo = camino(u"M 8.2 12.5 C 8.4 8 10 4.6 12 3.6 C 14 4.6 15.6 8 15.8 12.5 "
                                     u"C 14.6 11.2 9.4 11.2 8.2 12.5 Z");
    pintor.fillPath(tela, QColor::fromRgba(Blanco));
    pintor.fillPath(gajo, QColor::fromRgba(Sombra));
    QPen baston(QColor::fromRgba(Blanco), 1.4);
    baston.setCapStyle(Qt::RoundCap);
    pintor.strokePath(camino(u"M 12 11.8 L 12 18.4 C 12 20.8 8.6 20.8 8.6 18.6"), baston);
}

void dibujarEmblema(QPainter &pintor, const QRectF &lugar)
{
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    const double lado = qMin(lugar.width(), lugar.height());
    pintor.translate(lugar.center() - QPointF(lado / 2, lado / 2));
    pintor.scale(lado / Lado, lado / Lado);
    dibujarFondo(pintor);
    pintor.fillPath(camino(u"O 16.4 17.2 2.9"), QColor::fromRgba(Oro));
    dibujarParaguas(pintor);
    pintor.restore();
}
