#include "app/MarcoInterior.h"

#include "core/Textos.h"
#include "widgets/Dibujo.h"
#include "widgets/Iconos.h"
#include "widgets/PantallaBase.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>

using namespace Qt::StringLiterals;

MarcoInterior::MarcoInterior(PantallaBase *pantalla)
{
    pantalla->envolver();
    setWidget(pantalla);
    setObjectName(u"marco_"_s + pantalla->objectName());
    setAttribute(Qt::WA_DeleteOnClose);
    if (pantalla->windowIcon().isNull() || !pantalla->testAttribute(Qt::WA_SetWindowIcon))
        setWindowIcon(icono(Icono::Programa));
    traducirMenu();
}

void MarcoInterior::mostrarEn(const QRect &libre, bool amplia)
{
    constexpr QSize maximo(1040, 660);
    const QSize margen(40, 30);
    QSize tamano = sizeHint();
    if (amplia)
        tamano = tamano.expandedTo((libre.size() - margen).boundedTo(maximo));
    if (tamano.width() > libre.width() || tamano.height() > libre.height()) {
        showMaximized();
        return;
    }
    resize(tamano);
    const QSize resto = (libre.size() - tamano) / 2;
    move(libre.topLeft() + QPoint(resto.width(), resto.height()));
    show();
}

void MarcoInterior::mostrarEnLugarDe(const QMdiSubWindow &otro)
{
    if (otro.isMaximized()) {
        showMaximized();
        return;
    }
    setGeometry(otro.geometry());
    show();
}

void MarcoInterior::changeEvent(QEvent *evento)
{
    QMdiSubWindow::changeEvent(evento);
    if (evento->type() == QEvent::LanguageChange)
        traducirMenu();
}

void MarcoInterior::traducirMenu()
{
    // Qt gives the entries no names; their order is fixed
    static constexpr const char *entradas[]
        = {"&Restore", "&Move", "&Size", "Mi&nimize", "Ma&ximize", "Stay on &Top", "&Close"};
    size_t puesto = 0;
    for (auto *accion : systemMenu()->actions()) {
        if (!accion->isSeparator() && puesto < std::size(entradas))
            accion->setText(QCoreApplication::translate("QMdiSubWindow", entradas[puesto++]));
    }
}

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
