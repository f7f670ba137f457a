// What the buttons, keys and rows of the summary do.

#include "core/CEntrada.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "dataservice/ErrorDatos.h"
#include "declarants/FrmDecResumen.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/NuevaDeclaracion.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "printing/cImprimirVarias.h"
#include "widgets/Mensajes.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTableView>

using namespace Qt::StringLiterals;

using Fila = DeclaracionListada;

static cDecResumen &cabecera()
{
    return unico::la<cDecResumen>();
}

const DeclaracionListada *FrmDecResumen::filaActual() const
{
    const int fila = filaUnica(*m_flxDeclaraciones);
    return fila < 0 ? nullptr : &m_modelo->fila(fila);
}

void FrmDecResumen::alSeleccionar()
{
    const auto *fila = filaActual();
    cabecera().CSDE(fila ? fila->csde : 0);
    PresentaBotones();
}

/// The newest one when that return is not listed.
void FrmDecResumen::seleccionar(qint32 csde)
{
    const int fila = m_modelo->buscar(&Fila::csde, csde);
    m_flxDeclaraciones->selectRow(fila >= 0 ? fila : m_modelo->rowCount() - 1);
    alSeleccionar();
}

void FrmDecResumen::enfocarLista()
{
    QWidget *destino = m_flxDeclaraciones;
    if (m_modelo->rowCount() == 0)
        destino = m_cmdDeclarante;
    destino->setFocus(Qt::OtherFocusReason);
}

void FrmDecResumen::showEvent(QShowEvent *evento)
{
    PantallaBase::showEvent(evento);
    // the frame around gives the focus to the first field before the screen is shown
    if (!evento->spontaneous() && m_nueva->isHidden())
        enfocarLista();
}

/// Who the declarant is now; ErrorDatos when there is no such declarant any more.
void FrmDecResumen::LeerDeclarante()
{
    const auto declarante = cDecLista::CargarDeclarante(cabecera().CSCO());
    if (!declarante)
        throw ErrorDatos(Fallo::SinDeclarante, cabecera().DNI() + u" - "_s + cabecera().NOMBRE());
    cabecera().TomarDeclarante(declarante->csco, declarante->dni, declarante->nombre);
}

void FrmDecResumen::Actualizar()
{
    vaciar();
    procedimiento(this, [this] {
        try {
            LeerDeclarante();
        } catch (const ErrorDatos &error) {
            if (error.fallo() != Fallo::SinDeclarante)
                throw;
            cerrarA(Pantalla::Ninguna);
            return;
        }
        PresentaDatos();
    });
}

void FrmDecResumen::ActualizarDeclarante(qint32 csco)
{
    if (csco == cabecera().CSCO())
        Actualizar();
}

/// The first press proposes a return, the second creates it.
void FrmDecResumen::nueva()
{
    if (cabecera().MODO() == ModoCabecera::Nueva) {
        crear();
        return;
    }
    cabecera().MODO(ModoCabecera::Nueva);
    prepararNueva();
}

void FrmDecResumen::prepararNueva()
{
    m_nueva->PresentaDatos();
    mostrarNueva(true);
    m_nueva->enfocarPrimero();
}

/// The return that the screen was opened for: selected when it is stored, else proposed.
void FrmDecResumen::atender(const CabeceraListada &pedida)
{
    for (const Fila &fila : m_modelo->todas())
        if (fila == pedida) {
            seleccionar(fila.csde);
            return;
        }
    cabecera().Proponer(pedida);
    prepararNueva();
}

bool FrmDecResumen::ValidarCampos()
{
    const qint16 codigo = cabecera().ValidarDatosComunes(cabecera().Cabecera());
    const QString texto = textoCabecera(codigo);
    if (texto.isEmpty())
        return true;
    aviso(texto);
    m_nueva->enfocar(codigo);
    return false;
}

void FrmDecResumen::crear()
{
    if (!ValidarCampos())
        return;
    if (cabecera().TIPOLOGIA() == Tipologia430) {
        unico::la<cDatos430>().MODO(Modo::Alta);
        cerrarA(Pantalla::Datos430);
    } else {
        auto &registro = unico::la<cDatos480>();
        registro.MODO(Modo::Alta);
        registro.ENTRADA(Entrada::Abrir);
        cerrarA(Pantalla::Datos480a);
    }
}

void FrmDecResumen::mostrarNueva(bool visible)
{
    m_nueva->setVisible(visible);
    m_cmdAbandonar->setVisible(visible);
}

void FrmDecResumen::abandonarNueva()
{
    if (cabecera().MODO() != ModoCabecera::Nueva)
        return;
    cabecera().MODO(ModoCabecera::Lista);
    // what is only typed in the frame goes before the focus leaves it
    m_nueva->PresentaDatos();
    enfocarLista();
    mostrarNueva(false);
}

/// The header of the row selected into the record; a new return being prepared is given up, for
/// its header is the same one.
bool FrmDecResumen::tomarFila()
{
    const auto *fila = filaActual();
    if (!fila)
        return false;
    abandonarNueva();
    cabecera().TomarDeclaracion(*fila);
    return true;
}

void FrmDecResumen::abrir()
{
    if (!tomarFila())
        return;
    if (cabecera().TIPOLOGIA() == Tipologia430) {
        auto &registro = unico::la<cDatos430>();
        registro.MODO(Modo::Consulta);
        registro.CSDE(cabecera().CSDE());
        cerrarA(Pantalla::Datos430);
    } else {
        auto &registro = unico::la<cDatos480>();
        registro.MODO(Modo::Consulta);
        registro.ENTRADA(Entrada::Abrir);
        registro.CSDE(cabecera().CSDE());
        cerrarA(Pantalla::Datos480a);
    }
}

void FrmDecResumen::imprimirVarias()
{
    QList<FilaImprimir> filas;
    for (const int numero : filasElegidas(*m_flxDeclaraciones)) {
        const Fila &fila = m_modelo->fila(numero);
        filas.append({cabecera().CSCO(), fila.csde, cabecera().DNI(), cabecera().NOMBRE(), fila});
    }
    unico::la<cImprimirVarias>().Pedir(std::move(filas));
    Q_EMIT mostrar(Pantalla::ImprimirVarias);
}

void FrmDecResumen::imprimir()
{
    if (!tomarFila())
        return imprimirVarias();
    auto &peticion = unico::la<cImOf>();
    peticion.CSCO(cabecera().CSCO());
    peticion.CSDE(cabecera().CSDE());
    peticion.MODELO(cabecera().MODELO());
    Q_EMIT mostrar(Pantalla::Impresion);
}

/// False when another copy of the program has deleted it already.
static bool borrar(const Fila &fila)
{
    try {
        cabecera().BorrarDeclaracion(fila);
        return true;
    } catch (const ErrorDatos &error) {
        if (error.fallo() != Fallo::SinDeclaracion)
            throw;
        return false;
    }
}

void FrmDecResumen::eliminar()
{
    if (!filaActual())
        return;
    const Fila fila = *filaActual();
    const QString periodo = textoPeriodo(fila.periodicidad, fila.periodo);
    const QString titulo = msj(Msj::TituloBorradoDeclaracion);
    const QString ejercicio = QString::number(fila.ejercicio);
    if (!mensajes::pregunta(this, titulo, msj(Msj::PreguntaBorrarDeclaracion, ejercicio, periodo)))
        return;
    abandonarNueva();
    const QString nombre = fila.nombre();
    if (borrar(fila))
        decir(msj(Msj::DeclaracionEliminada, nombre));
    else
        mensajes::aviso(this, titulo, msj(Msj::EliminadoEnOtraCopia, nombre));
    Q_EMIT datosCambiados(cabecera().CSCO());
    unico::la<CEntrada>().InicializarContadores();
    PresentaDatos();
    enfocarLista();
}

void FrmDecResumen::verDeclarante()
{
    auto &datos = unico::la<cDecDatos>();
    datos.MODO(Modo::Consulta);
    datos.CSCO(cabecera().CSCO());
    datos.CargarDeclarante(cabecera().CSCO());
    cerrarA(Pantalla::DatosDeclarante);
}

/// Escape gives the new return up.
void FrmDecResumen::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && cabecera().MODO() == ModoCabecera::Nueva)
        procedimiento(this, [this] { abandonarNueva(); });
    else
        PantallaBase::keyPressEvent(evento);
}
