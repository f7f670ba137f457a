#include "app/Estilo.h"

#include "core/Textos.h"
#include "widgets/Dibujo.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

/// Fusion with flat title bars for the windows inside the main window.
class EstiloFusion : public QProxyStyle
{
public:
    EstiloFusion();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *opcion,
                            QPainter *pintor, const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                       const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap cual, const QStyleOption *opcion,
                       const QWidget *widget) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                    const QWidget *widget) const override;
    int styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *widget,
                  QStyleHintReturn *resultado) const override;

private:
    void pintarTitulo(const QStyleOptionTitleBar &barra, QPainter &pintor,
                      const QWidget *widget) const;
    void pintarBoton(const QStyleOptionTitleBar &barra, SubControl boton, QPainter &pintor,
                     const QWidget *widget) const;
};

} // namespace

static constexpr QRgb Activa = 0xff1f5f93;
static constexpr QRgb Peligro = 0xffc8453b;

EstiloFusion::EstiloFusion()
    : QProxyStyle(u"Fusion"_s)
{
}

int EstiloFusion::pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                              const QWidget *widget) const
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

int EstiloFusion::styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *widget,
                            QStyleHintReturn *resultado) const
{
    // disabled text with a shadow is hard to read on dark backgrounds
    return cual == SH_EtchDisabledText ? 0
                                       : QProxyStyle::styleHint(cual, opcion, widget, resultado);
}

/// The style draws the outlines of boxes and marks in a darker shade of the window's colour, which
/// cannot be seen on a dark one: it is given the colour whose darker shade has the contrast.
static QPalette conContorno(QPalette paleta)
{
    static constexpr QRgb Contorno = 0xff707b86;
    static constexpr int Oscurecido = 140; // by the style, in percent
    paleta.setColor(QPalette::Window, QColor::fromRgb(Contorno).lighter(Oscurecido));
    return paleta;
}

void EstiloFusion::drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion,
                                 QPainter *pintor, const QWidget *widget) const
{
    if (elemento == PE_IndicatorCheckBox || elemento == PE_IndicatorRadioButton) {
        QStyleOptionButton copia = *static_cast<const QStyleOptionButton *>(opcion);
        copia.palette = conContorno(copia.palette);
        QProxyStyle::drawPrimitive(elemento, &copia, pintor, widget);
    } else if (const auto *marco = qstyleoption_cast<const QStyleOptionFrame *>(opcion);
               marco && elemento == PE_FrameLineEdit) {
        QStyleOptionFrame copia = *marco;
        copia.palette = conContorno(copia.palette);
        QProxyStyle::drawPrimitive(elemento, &copia, pintor, widget);
    } else {
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
    }
}

QIcon EstiloFusion::standardIcon(StandardPixmap cual, const QStyleOption *opcion,
                                 const QWidget *widget) const
{
    switch (cual) {
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return icono(Icono::Aviso);
    case SP_MessageBoxQuestion:
        return icono(Icono::Pregunta);
    case SP_MessageBoxInformation:
        return icono(Icono::Informacion);
    default:
        return QProxyStyle::standardIcon(cual, opcion, widget);
    }
}

void EstiloFusion::drawComplexControl(ComplexControl control, const QStyleOptionComplex *opcion,
                                      QPainter *pintor, const QWidget *widget) const
{
    if (const auto *lista = qstyleoption_cast<const QStyleOptionComboBox *>(opcion)) {
        QStyleOptionComboBox copia = *lista;
        copia.palette = conContorno(copia.palette);
        return QProxyStyle::drawComplexControl(control, &copia, pintor, widget);
    }
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

void EstiloFusion::pintarTitulo(const QStyleOptionTitleBar &barra, QPainter &pintor,
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

void EstiloFusion::pintarBoton(const QStyleOptionTitleBar &barra, SubControl boton,
                               QPainter &pintor, const QWidget *widget) const
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

namespace {

struct Color
{
    QPalette::ColorRole papel;
    QRgb claro;
    QRgb oscuro;
};

} // namespace

static constexpr Color Colores[] = {
    {QPalette::Window, 0xfff2f5f8, 0xff2a2e33},
    {QPalette::WindowText, 0xff1f2a35, 0xffe6eaee},
    {QPalette::Base, 0xffffffff, 0xff1f2226},
    {QPalette::AlternateBase, 0xfff4f8fb, 0xff252a2f},
    {QPalette::Text, 0xff1f2a35, 0xffe6eaee},
    {QPalette::Button, 0xfff7f9fb, 0xff363b41},
    {QPalette::ButtonText, 0xff1f2a35, 0xffe6eaee},
    {QPalette::Highlight, 0xff1d6fa8, 0xff5aa9e6},
    {QPalette::HighlightedText, 0xffffffff, 0xff0d1720},
    {QPalette::ToolTipBase, 0xfffffbe8, 0xff3a4047},
    {QPalette::ToolTipText, 0xff1f2a35, 0xffe6eaee},
    {QPalette::PlaceholderText, 0xff7a8794, 0xff8d98a3},
    {QPalette::Link, 0xff1d6fa8, 0xff4da3dc},
};

static QPalette paleta(bool oscura)
{
    QPalette nueva(QColor::fromRgb(oscura ? 0xff363b41 : 0xfff7f9fb),
                   QColor::fromRgb(oscura ? 0xff2a2e33 : 0xfff2f5f8));
    for (const Color &color : Colores)
        nueva.setColor(color.papel, QColor::fromRgb(oscura ? color.oscuro : color.claro));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        nueva.setColor(QPalette::Disabled, papel,
                       QColor::fromRgb(oscura ? 0xff7f8890 : 0xff98a2ad));
    nueva.setColor(QPalette::Disabled, QPalette::Base,
                   QColor::fromRgb(oscura ? 0xff2f343a : 0xffe6eaee));
    nueva.setColor(QPalette::Disabled, QPalette::Highlight,
                   QColor::fromRgb(oscura ? 0xff4a5158 : 0xffc3ccd6));
    nueva.setColor(QPalette::Disabled, QPalette::HighlightedText,
                   QColor::fromRgb(oscura ? 0xffb4bcc4 : 0xff5c6873));
    return nueva;
}

void aplicarEstilo()
{
    // the desktop decides between light and dark
    const bool oscura = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QApplication::setStyle(new EstiloFusion);
    QApplication::setPalette(paleta(oscura));
    QFont letra = QApplication::font();
    letra.setPointSizeF(qMax(letra.pointSizeF(), 10.0));
    QApplication::setFont(letra);
}

TextosQt::TextosQt()
{
    QFile fichero(u":/textos/textos_qt.txt"_s);
    if (!fichero.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &linea : fichero.readAll().replace("\\n", "\v").split('\n')) {
        const auto campos = QByteArray(linea).replace('\v', '\n').split('|');
        if (campos.size() == 3 && !linea.startsWith('#'))
            m_textos.insert(campos[0],
                            {QString::fromUtf8(campos[1]), QString::fromUtf8(campos[2])});
    }
}

QString TextosQt::translate(const char *, const char *texto, const char *, int) const
{
    const auto hallado = m_textos.constFind(
        QByteArray::fromRawData(texto, static_cast<qsizetype>(qstrlen(texto))));
    return hallado == m_textos.constEnd() ? QString() : elegir(hallado->first, hallado->second);
}
