#include "printing/FrmImOf.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/GuardarCopias.h"
#include "printing/OpcionesImpresion.h"
#include "printing/TrabajoImpresion.h"
#include "printing/cImOf.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static cImOf &peticion()
{
    return unico::la<cImOf>();
}

FrmImOf::FrmImOf(QWidget *padre)
    : PantallaBase(u"FrmImOf"_s, padre)
    , m_lblDeclaracion(nuevaEtiqueta(u"lblDeclaracion"_s, this))
    , m_lblImpresora(nuevaEtiqueta(u"lblImpresora"_s, this))
    , m_opciones(new OpcionesImpresion(peticion(), this))
    , m_chkUnPdf(new QCheckBox(this))
{
    m_chkUnPdf->setObjectName(u"chkUnPdf"_s);
    disponer();
    Anadir_captions();
    cargarPeticion();
    PresentaDatos();
    conectar();
}

void FrmImOf::disponer()
{
    auto *salidas = new BarraBotones(u"fraSalidas"_s, this);
    m_btnOpciones = salidas->anadir(u"btnOpcionesImpresora"_s, u"picimp"_s, Icono::Imprimir);
    m_btnVistaPrevia = salidas->anadir(u"btnVistaPrevia"_s, {}, Icono::Imprimir);
    m_btnGuardarPdf = salidas->anadir(u"btnGuardarPdf"_s, {}, Icono::Imprimir);
    auto *pie = new BarraBotones(u"fraBotones"_s, this);
    m_btnAceptar = pie->anadir(u"btnAceptar"_s, u"PicAce"_s, Icono::Aceptar);
    m_btnCancelar = pie->anadir(u"btnCancelar"_s, u"Piccan"_s, Icono::Cancelar);

    auto *todo = new QVBoxLayout(this);
    agrandarLetra(m_lblDeclaracion, 1.1);
    m_lblDeclaracion->setWordWrap(true);
    todo->addWidget(m_lblDeclaracion);
    todo->addWidget(m_opciones);
    // the name of a file may be long: it never widens the screen
    m_lblImpresora->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    todo->addWidget(m_lblImpresora);
    todo->addWidget(salidas);
    todo->addWidget(m_chkUnPdf);
    todo->addStretch(1);
    todo->addWidget(pie);

    enlazarTab(m_opciones->orden()
               + QList<QWidget *>{m_btnOpciones, m_btnVistaPrevia, m_btnGuardarPdf, m_chkUnPdf,
                                  m_btnAceptar, m_btnCancelar});
}

void FrmImOf::Anadir_captions()
{
    setWindowTitle(msj(Msj::Imprimir));
    m_opciones->Anadir_captions();
    m_chkUnPdf->setText(msj(Msj::PdfUnoSolo));
    m_btnOpciones->setText(msj(Msj::OpcionesImpresora));
    m_btnVistaPrevia->setText(msj(Msj::BotonVistaPrevia));
    m_btnVistaPrevia->setToolTip(msj(Msj::PistaVistaPrevia));
    m_btnGuardarPdf->setText(msj(Msj::BotonGuardarPdf));
    m_btnGuardarPdf->setToolTip(msj(Msj::PistaGuardarPdf));
    m_btnAceptar->setText(msj(Msj::BotonAceptar));
    m_btnCancelar->setText(msj(Msj::BotonCancelar));
    m_btnAceptar->setToolTip(msj(Msj::PistaImprimirCopias));
    m_btnCancelar->setToolTip(msj(Msj::PistaCerrarSinImprimir));
    mostrarQue();
}

/// Which return of whom, and where to.
void FrmImOf::mostrarQue()
{
    const auto &cabecera = unico::la<cDecResumen>();
    const int periodicidad
        = peticion().MODELO() == Modelo480 ? PeriodicidadAnual : PeriodicidadMensual;
    m_lblDeclaracion->setText(u"%1 %2 %3\n%4 - %5"_s.arg(
        peticion().MODELO(), textoPeriodo(periodicidad, cabecera.PERIODO()),
        QString::number(cabecera.EJERCICIO()), cabecera.DNI(), cabecera.NOMBRE()));
    m_lblImpresora->setText(msj(Msj::ImpresoraElegida, m_salida.nombre()));
    m_lblImpresora->setToolTip(m_salida.nombre());
}

void FrmImOf::cargarPeticion()
{
    if (peticion().MODELO() == Modelo430)
        unico::la<cDatos430>().CSDE(peticion().CSDE());
    else
        unico::la<cDatos480>().CSDE(peticion().CSDE());
    m_chkUnPdf->setChecked(true);
}

void FrmImOf::PresentaDatos()
{
    const bool ambas = peticion().COPIAINT() == u"X" && peticion().COPIAADM() == u"X";
    for (QPushButton *boton : {m_btnAceptar, m_btnVistaPrevia, m_btnGuardarPdf})
        boton->setEnabled(peticion().HayCopias());
    m_chkUnPdf->setEnabled(ambas);
}

void FrmImOf::conectar()
{
    connect(m_opciones, &OpcionesImpresion::cambiada, this, &FrmImOf::PresentaDatos);
    alPulsar(m_btnOpciones, [this] {
        m_salida.opciones(this);
        mostrarQue();
    });
    alPulsar(m_btnVistaPrevia, [this] { vistaPrevia(); });
    alPulsar(m_btnGuardarPdf, [this] { guardarPdf(); });
    alPulsar(m_btnAceptar, [this] { imprimir(); });
    alPulsarSinConfirmar(m_btnCancelar, [this] { cerrarA(alCerrarMarco()); });
}

void FrmImOf::imprimir()
{
    const bool aFichero = !m_salida.ficheros(copiasPedidas(peticion())).isEmpty();
    if (!aFichero && !SalidaImpresora::hayImpresoras()) {
        mensajes::informacion(this, windowTitle(), msj(Msj::SinImpresoras));
        return;
    }
    if (!m_opciones->ValidarFecha())
        return;
    TrabajoImpresion trabajo(peticion());
    if (aFichero) {
        if (guardarCopiasEn(this, trabajo, m_salida.ficheros(trabajo.copias())))
            cerrarA(alCerrarMarco());
        return;
    }
    bool impreso = false;
    {
        const PunteroOcupado puntero;
        impreso = m_salida.imprimir(trabajo);
    }
    if (impreso)
        cerrarA(alCerrarMarco());
    else
        aviso(msj(Msj::ErrorImpresora, m_salida.nombre()));
}

void FrmImOf::vistaPrevia()
{
    if (!m_opciones->ValidarFecha())
        return;
    TrabajoImpresion trabajo(peticion());
    m_salida.vistaPrevia(this, trabajo);
}

void FrmImOf::guardarPdf()
{
    if (!m_opciones->ValidarFecha())
        return;
    TrabajoImpresion trabajo(peticion());
    if (guardarCopias(this, trabajo, m_chkUnPdf->isChecked()))
        cerrarA(alCerrarMarco());
}

Pantalla FrmImOf::alCerrarMarco()
{
    unico::la<cDecResumen>().ENTRADA(Entrada::Vuelta);
    return Pantalla::Resumen;
}
