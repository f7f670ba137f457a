#include "app/BarraHerramientas.h"

#include <QLayout>

BarraHerramientas::BarraHerramientas(QWidget *padre)
    : QToolBar(padre)
    , m_puntos(font().pointSizeF())
{
}

void BarraHerramientas::acomodar()
{
    const auto conTexto
        = iconSize().height() < 32 ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextUnderIcon;
    if (!cabe(1, conTexto) && !cabe(0.85, conTexto))
        cabe(1, Qt::ToolButtonIconOnly);
}

bool BarraHerramientas::cabe(double aumento, Qt::ToolButtonStyle estilo)
{
    QFont letra = font();
    letra.setPointSizeF(m_puntos * aumento);
    setFont(letra);
    setToolButtonStyle(estilo);
    layout()->invalidate();
    return layout()->sizeHint().width() <= width();
}

void BarraHerramientas::resizeEvent(QResizeEvent *evento)
{
    QToolBar::resizeEvent(evento);
    acomodar();
}
