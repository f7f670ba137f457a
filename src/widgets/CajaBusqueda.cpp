#include "widgets/CajaBusqueda.h"

#include "core/Textos.h"

using namespace Qt::StringLiterals;

static constexpr int AnchoMinimo = 160;

CajaBusqueda::CajaBusqueda(QWidget *padre)
    : QLineEdit(padre)
{
    setObjectName(u"txtBusqueda"_s);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void CajaBusqueda::mostrarEn(const QRect &lugar)
{
    setGeometry(lugar.x(), lugar.y(), std::max(lugar.width(), AnchoMinimo), lugar.height());
    setAccessibleName(msj(Msj::AccesibleCuadroBusqueda));
    show();
    raise();
}

void CajaBusqueda::vaciar()
{
    clear();
    hide();
}

void CajaBusqueda::hallado(bool algo)
{
    QPalette colores;
    if (!algo)
        colores.setColor(QPalette::Text, Qt::red);
    setPalette(colores);
}
