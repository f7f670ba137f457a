#include "declarations/PantallaDeclaracion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "declarations/CabeceraDeclaracion.h"
#include "widgets/Disposicion.h"

#include <QFrame>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PantallaDeclaracion::PantallaDeclaracion(const QString &nombre, QWidget *padre)
    : PantallaBase(nombre, padre)
    , m_cuerpo(new QVBoxLayout)
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cabecera(new CabeceraDeclaracion(this))
{
    m_cuerpo->setSpacing(10);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(10);
    todo->addWidget(m_cabecera);
    todo->addWidget(nuevaRaya(this));
    todo->addLayout(m_cuerpo, 1);
    todo->addWidget(nuevaRaya(this));
    todo->addWidget(m_botones);
}

void PantallaDeclaracion::Anadir_captions()
{
    m_cabecera->mostrar();
}

CajaImporte *PantallaDeclaracion::cajaCalculada(const QString &nombre)
{
    auto *caja = new CajaImporte(nombre, this);
    caja->bloquear(true);
    return caja;
}

/// Runs a change of the record and shows it; an exception is told and counts as refused.
bool PantallaDeclaracion::tomar(const std::function<bool()> &cambio)
{
    bool tomado = false;
    procedimiento(this, [&] {
        tomado = cambio();
        if (tomado)
            PresentaDatos();
        else
            aviso(msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
    });
    return tomado;
}

void PantallaDeclaracion::cerrarComoCancelar()
{
    cerrarA(alCerrarMarco());
}

void PantallaDeclaracion::entregar(const QString &modo, qint32 csde)
{
    auto &cabecera = unico::la<cDecResumen>();
    if (modo == Modo::Alta)
        cabecera.CSDE(csde);
    cabecera.ENTRADA(Entrada::Vuelta);
    Q_EMIT datosCambiados();
    cerrarA(Pantalla::Resumen);
}

Pantalla PantallaDeclaracion::alCerrarMarco()
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.ENTRADA(Entrada::Vuelta);
    cabecera.CSDE(csdeRegistro());
    return Pantalla::Resumen;
}
