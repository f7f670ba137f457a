#include "app/FondoMdi.h"

#include "core/Textos.h"
#include "widgets/Dibujo.h"

#include <QEvent>
#include <QPainter>

FondoMdi::FondoMdi(QWidget *padre)
    : QMdiArea(padre)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
}

static void pintarLetrero(QPainter &pintor, const QRectF &lugar, const QColor &tinta)
{
    QFont letra = pintor.font();
    letra.setPointSizeF(letra.pointSizeF() * 2.2);
    letra.setWeight(QFont::Light);
    pintor.setFont(letra);
    pintor.setPen(tinta);
    pintor.drawText(lugar, Qt::AlignHCenter | Qt::AlignTop, msj(Msj::TituloPrograma));
    letra.setPointSizeF(letra.pointSizeF() * 0.5);
    const double salto = QFontMetricsF(pintor.font()).height();
    pintor.setFont(letra);
    pintor.drawText(lugar.adjusted(0, salto, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                    msj(Msj::NombreDiputacion));
}

void FondoMdi::changeEvent(QEvent *evento)
{
    QMdiArea::changeEvent(evento);
    if (evento->type() == QEvent::LanguageChange)
        viewport()->update();
}

void FondoMdi::paintEvent(QPaintEvent *)
{
    QPainter pintor(viewport());
    const QRectF todo = viewport()->rect();
    const QColor fondo = palette().color(QPalette::Window);
    const bool oscuro = fondo.lightness() < 128;
    QLinearGradient degradado(todo.topLeft(), todo.bottomLeft());
    degradado.setColorAt(0, oscuro ? fondo.darker(118) : fondo.darker(103));
    degradado.setColorAt(1, oscuro ? fondo.darker(150) : fondo.darker(113));
    pintor.fillRect(todo, degradado);

    constexpr double lado = 112;
    QRectF emblema(0, 0, lado, lado);
    emblema.moveCenter(todo.center() - QPointF(0, lado * 0.6));
    pintor.setOpacity(0.75);
    dibujarEmblema(pintor, emblema);
    pintor.setOpacity(0.7);
    pintarLetrero(pintor, QRectF(0, emblema.bottom() + 18, todo.width(), 100),
                  palette().color(QPalette::WindowText));
}
