#include "app/Estilo.h"

#include "widgets/Camino.h"

#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

static constexpr QRgb Activa = 0xff1f5f93;
static constexpr QRgb Peligro = 0xffc8453b;

Estilo::Estilo()
    : QProxyStyle(u"Fusion"_s)
{
}

int Estilo::pixelMetric(PixelMetric medida, const QStyleOption *opcion, const QWidget *widget) const
{
    switch (medida) {
    case PM_TitleBarHeight:
        return 30;
    case PM_MdiSubWindowFrameWidth:
        return 3;
    case PM_ToolBarItemSpacing:
        return 4;
    case PM_ToolBarItemMargin:
        return 3;
    default:
        return QProxyStyle::pixelMetric(medida, opcion, widget);
    }
}

int Estilo::styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *widget,
                      QStyleHintReturn *resultado) const
{
    // disabled text with a shadow is hard to read on dark backgrounds
    return cual == SH_EtchDisabledText ? 0
                                       : QProxyStyle::styleHint(cual, opcion, widget, resultado);
}

void Estilo::drawComplexControl(ComplexControl control, const QStyleOptionComplex *opcion,
                                QPainter *pintor, const QWidget *widget) const
{
    const auto *barra = qstyleoption_cast<const QStyleOptionTitleBar *>(opcion);
    if (control != CC_TitleBar || !barra)
        return QProxyStyle::drawComplexControl(control, opcion, pintor, widget);
    pintor->save();
    pintor->setRenderHint(QPainter::Antialiasing);
    pintarTitulo(*barra, *pintor, widget);
    for (const auto boton : {SC_TitleBarMinButton, SC_TitleBarMaxButton, SC_TitleBarNormalButton,
                             SC_TitleBarCloseButton})
        pintarBoton(*barra, boton, *pintor, widget);
    pintor->restore();
}

static bool activa(const QStyleOptionTitleBar &barra)
{
    return barra.titleBarState & QStyle::State_Active;
}

static QColor tinta(const QStyleOptionTitleBar &barra)
{
    return activa(barra) ? QColor(Qt::white)
                         : barra.palette.color(QPalette::Disabled, QPalette::WindowText);
}

void Estilo::pintarTitulo(const QStyleOptionTitleBar &barra, QPainter &pintor,
                          const QWidget *widget) const
{
    const QColor fondo = barra.palette.color(QPalette::Window);
    pintor.fillRect(barra.rect, activa(barra) ? QColor::fromRgb(Activa) : fondo.darker(108));
    const QRect menu = proxy()->subControlRect(CC_TitleBar, &barra, SC_TitleBarSysMenu, widget);
    barra.icon.paint(&pintor, menu);
    QFont letra = pintor.font();
    letra.setWeight(QFont::DemiBold);
    pintor.setFont(letra);
    pintor.setPen(tinta(barra));
    const QRect lugar = proxy()
                            ->subControlRect(CC_TitleBar, &barra, SC_TitleBarLabel, widget)
                            .adjusted(6, 0, -6, 0);
    const QString texto
        = pintor.fontMetrics().elidedText(barra.text, Qt::ElideRight, lugar.width());
    pintor.drawText(lugar, Qt::AlignVCenter | Qt::AlignLeft, texto);
}

static QStringView simbolo(QStyle::SubControl boton)
{
    switch (boton) {
    case QStyle::SC_TitleBarMinButton:
        return u"M 7 15 L 17 15";
    case QStyle::SC_TitleBarMaxButton:
        return u"R 7.5 7.5 9 9 1";
    case QStyle::SC_TitleBarNormalButton:
        return u"R 6.5 9.5 8 8 1 M 9.5 6.5 L 17.5 6.5 L 17.5 14.5";
    default:
        return u"M 7.5 7.5 L 16.5 16.5 M 16.5 7.5 L 7.5 16.5";
    }
}

void Estilo::pintarBoton(const QStyleOptionTitleBar &barra, SubControl boton, QPainter &pintor,
                         const QWidget *widget) const
{
    const QRectF lugar = proxy()->subControlRect(CC_TitleBar, &barra, boton, widget);
    if (!(barra.subControls & boton) || lugar.isEmpty())
        return;
    const bool encima = (barra.activeSubControls & boton) && (barra.state & State_MouseOver);
    if (encima) {
        const bool cierre = boton == SC_TitleBarCloseButton;
        QPainterPath tecla;
        tecla.addRoundedRect(lugar, 3, 3);
        pintor.fillPath(tecla, cierre ? QColor::fromRgb(Peligro) : QColor(255, 255, 255, 60));
    }
    pintor.save();
    pintor.translate(lugar.center());
    constexpr double unidades = 24;
    const double escala = 22 / unidades;
    pintor.scale(escala, escala);
    pintor.translate(-unidades / 2, -unidades / 2);
    const QPen pluma(encima ? QColor(Qt::white) : tinta(barra), 1.5, Qt::SolidLine, Qt::RoundCap,
                     Qt::RoundJoin);
    pintor.strokePath(camino(simbolo(boton)), pluma);
    pintor.restore();
}
