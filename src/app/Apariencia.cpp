#include "app/Apariencia.h"

#include "app/Estilo.h"

#include <QApplication>
#include <QMainWindow>
#include <QPalette>
#include <QScreen>
#include <QToolBar>

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
    {QPalette::Highlight, 0xff1d6fa8, 0xff2f7fb8},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
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
    nueva.setColor(QPalette::Disabled, QPalette::Highlight,
                   QColor::fromRgb(oscura ? 0xff4a5158 : 0xffc3ccd6));
    return nueva;
}

void aplicarApariencia()
{
    // the desktop decides between light and dark
    const bool oscura = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QApplication::setStyle(new Estilo);
    QApplication::setPalette(paleta(oscura));
    QFont letra = QApplication::font();
    letra.setPointSizeF(qMax(letra.pointSizeF(), 10.0));
    QApplication::setFont(letra);
}

void mostrarCentrada(QMainWindow &ventana)
{
    constexpr QSize deseado(1180, 800);
    const QRect libre = ventana.screen()->availableGeometry();
    if (libre.width() < deseado.width() || libre.height() < deseado.height()) {
        // every line counts for the screens inside
        for (auto *barra : ventana.findChildren<QToolBar *>()) {
            barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
            barra->setIconSize({20, 20});
        }
        ventana.setGeometry(libre);
        ventana.showMaximized();
        return;
    }
    QRect lugar({}, deseado);
    lugar.moveCenter(libre.center());
    ventana.setGeometry(lugar);
    ventana.show();
}
