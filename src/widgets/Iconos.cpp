#include "widgets/Iconos.h"

#include "widgets/Dibujo.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <memory>

using namespace Qt::StringLiterals;

static QColor mezclar(const QColor &uno, const QColor &otro, double parte)
{
    const auto canal = [parte](int a, int b) { return qRound(a * parte + b * (1 - parte)); };
    return {canal(uno.red(), otro.red()), canal(uno.green(), otro.green()),
            canal(uno.blue(), otro.blue())};
}

namespace {

/// A tone that does not come from the palette: on light backgrounds and on dark ones.
struct Par
{
    Tono tono;
    QRgb enClaro;
    QRgb enOscuro;
};

} // namespace

static constexpr Par Pares[] = {
    {Tono::Acento, 0xff1d6fa8, 0xff4da3dc}, {Tono::AcentoSuave, 0xffcfe3f2, 0xff2b4a63},
    {Tono::Verde, 0xff2e8b57, 0xff3fa56c},  {Tono::Rojo, 0xffc8453b, 0xffe0645a},
    {Tono::Ambar, 0xfff2b632, 0xffe0a52e},  {Tono::AmbarSuave, 0xfffbe6b2, 0xff6b5527},
    {Tono::Blanco, 0xffffffff, 0xffffffff},
};

static QColor color(Tono tono)
{
    const QPalette paleta = QGuiApplication::palette();
    const QColor fondo = paleta.color(QPalette::Window);
    const bool oscuro = fondo.lightness() < 128;
    for (const Par &par : Pares) {
        if (par.tono == tono)
            return QColor::fromRgb(oscuro ? par.enOscuro : par.enClaro);
    }
    const QColor tinta = mezclar(paleta.color(QPalette::WindowText), fondo, 0.78);
    return tono == Tono::Suave ? mezclar(tinta, fondo, 0.16) : tinta;
}

/// A disabled icon keeps its light and dark parts, in greys near the background.
static QColor apagado(const QColor &vivo)
{
    const QColor fondo = QGuiApplication::palette().color(QPalette::Window);
    const int gris = qGray(vivo.rgb());
    return mezclar(QColor(gris, gris, gris), fondo, 0.36);
}

namespace {

class Motor : public QIconEngine
{
public:
    explicit Motor(Icono cual)
        : m_cual(cual)
    {
    }

    void paint(QPainter *pintor, const QRect &lugar, QIcon::Mode modo, QIcon::State) override
    {
        if (m_cual == Icono::Programa) {
            dibujarEmblema(*pintor, lugar);
            return;
        }
        constexpr double unidades = 24;
        const double lado = qMin(lugar.width(), lugar.height());
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(QRectF(lugar).center() - QPointF(lado / 2, lado / 2));
        pintor->scale(lado / unidades, lado / unidades);
        for (const Trazo &trazo : dibujo(m_cual))
            pintar(*pintor, trazo, modo == QIcon::Disabled);
        pintor->restore();
    }

    QPixmap pixmap(const QSize &tamano, QIcon::Mode modo, QIcon::State estado) override
    {
        QPixmap imagen(tamano);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        paint(&pintor, imagen.rect(), modo, estado);
        return imagen;
    }

    QIconEngine *clone() const override { return std::make_unique<Motor>(m_cual).release(); }
    QString key() const override { return u"ostrel"_s; }

private:
    static void pintar(QPainter &pintor, const Trazo &trazo, bool inactivo)
    {
        const QColor tono = inactivo ? apagado(color(trazo.tono)) : color(trazo.tono);
        if (trazo.grosor > 0) {
            const QPen pluma(tono, trazo.grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
            pintor.strokePath(camino(trazo.camino), pluma);
        } else {
            pintor.fillPath(camino(trazo.camino), tono);
        }
    }

    Icono m_cual;
};

} // namespace

QIcon icono(Icono cual)
{
    return QIcon(std::make_unique<Motor>(cual).release());
}
