// What the buttons, keys and rows of the summary do.

#include "core/CEntrada.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/FrmDecResumen.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/NuevaDeclaracion.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "widgets/Mensajes.h"
#include "widgets/ModeloFilas.h"

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
    const auto filas = m_flxDeclaraciones->selectionModel()->selectedRows();
    return filas.isEmpty() ? nullptr : &m_modelo->fila(filas.first().row());
}

void FrmDecResumen::alSeleccionar()
{
    const auto *fila = filaActual();
    cabecera().CSDE(fila ? fila->csde : 0);
    PresentaBotones();
}

void FrmDecResumen::seleccionar(qint32 csde)
{
    const int fila = csde == 0 ? -1 : m_modelo->buscar(&Fila::csde, csde);
    if (fila >= 0)
        m_flxDeclaraciones->selectRow(fila);
    else
        m_flxDeclaraciones->clearSelection();
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

void FrmDecResumen::Actualizar()
{
    procedimiento(this, [this] {
        if (unico::la<cDecDatos>().ObtenerCodigoDeclarante(cabecera().DNI()) == 0)
            cerrarA(Pantalla::Ninguna);
        else
            PresentaDatos();
    });
}

/// The first press proposes a return, the second creates it.
void FrmDecResumen::nueva()
{
    if (cabecera().MODO() == ModoCabecera::Nueva) {
        crear();
        return;
    }
    cabecera().MODO(ModoCabecera::Nueva);
    m_nueva->PresentaDatos();
    mostrarNueva(true);
    m_nueva->enfocarPrimero();
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
    mostrarNueva(false);
    enfocarLista();
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

void FrmDecResumen::imprimir()
{
    if (!tomarFila())
        return;
    auto &peticion = unico::la<cImOf>();
    peticion.CSCO(cabecera().CSCO());
    peticion.CSDE(cabecera().CSDE());
    peticion.MODELO(cabecera().MODELO());
    Q_EMIT mostrar(Pantalla::Impresion);
}

void FrmDecResumen::eliminar()
{
    if (!filaActual())
        return;
    const Fila fila = *filaActual();
    const QString texto = msj(Msj::PreguntaBorrarDeclaracion, QString::number(fila.ejercicio),
                              textoPeriodo(fila.periodicidad, fila.periodo));
    if (!mensajes::pregunta(this, msj(Msj::TituloBorradoDeclaracion), texto))
        return;
    abandonarNueva();
    cabecera().BorrarDeclaracion(fila);
    cabecera().CSDE(0);
    PresentaDatos();
    enfocarLista();
    unico::la<CEntrada>().InicializarContadores();
    Q_EMIT datosCambiados(cabecera().CSCO());
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

/// With nothing selected yet, the first arrow key selects the row under the cursor, which it would
/// otherwise step over.
bool FrmDecResumen::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == m_flxDeclaraciones && evento->type() == QEvent::KeyPress && !filaActual()) {
        const int tecla = static_cast<QKeyEvent *>(evento)->key();
        if (tecla == Qt::Key_Down || tecla == Qt::Key_Up) {
            m_flxDeclaraciones->selectRow(std::max(0, m_flxDeclaraciones->currentIndex().row()));
            return true;
        }
    }
    return PantallaBase::eventFilter(objeto, evento);
}
