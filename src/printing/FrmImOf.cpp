#include "printing/FrmImOf.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/GuardarCopias.h"
#include "printing/TrabajoImpresion.h"
#include "printing/cImOf.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDate>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

enum { Oficial, Borrador };

static cImOf &peticion()
{
    return unico::la<cImOf>();
}

template <class Control> static Control *crear(const QString &nombre, QWidget *padre)
{
    auto *control = new Control(padre);
    control->setObjectName(nombre);
    return control;
}

FrmImOf::FrmImOf(QWidget *padre)
    : PantallaBase(u"FrmImOf"_s, padre)
    , m_lblDeclaracion(nuevaEtiqueta(u"lblDeclaracion"_s, this))
    , m_lblImpresora(nuevaEtiqueta(u"lblImpresora"_s, this))
    , m_frameTipo(crear<QGroupBox>(u"frameTipoImpreso"_s, this))
    , m_opt(new QButtonGroup(this))
    , m_fraDestinatario(crear<QGroupBox>(u"fraDestinatario"_s, this))
    , m_chkInteresado(crear<QCheckBox>(u"chkCopiaInteresado"_s, m_fraDestinatario))
    , m_chkAdministracion(crear<QCheckBox>(u"chkCopiaAdministracion"_s, m_fraDestinatario))
    , m_fraFecha(crear<QGroupBox>(u"fraFechaDePresentacion"_s, this))
    , m_txtFecha(new CajaFecha(u"txtFechaPresentacion"_s, m_fraFecha))
    , m_chkUnPdf(crear<QCheckBox>(u"chkUnPdf"_s, this))
{
    crearTipo();
    crearDestinatario();
    disponer();
    Anadir_captions();
    cargarPeticion();
    PresentaDatos();
    conectar();
}

void FrmImOf::crearTipo()
{
    m_opt->setObjectName(u"optTipoImpreso"_s);
    auto *fila = new QHBoxLayout(m_frameTipo);
    for (const int tipo : {Oficial, Borrador}) {
        auto *opcion
            = crear<QRadioButton>(u"optTipoImpreso"_s + QString::number(tipo), m_frameTipo);
        m_opt->addButton(opcion, tipo);
        fila->addWidget(opcion);
    }
}

void FrmImOf::crearDestinatario()
{
    auto *fila = new QHBoxLayout(m_fraDestinatario);
    fila->addWidget(m_chkInteresado);
    fila->addWidget(m_chkAdministracion);
    auto *fecha = new QHBoxLayout(m_fraFecha);
    fecha->addWidget(m_txtFecha);
    fecha->addStretch(1);
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
    todo->addWidget(m_frameTipo);
    todo->addWidget(m_fraDestinatario);
    todo->addWidget(m_fraFecha);
    // the name of a file may be long: it never widens the screen
    m_lblImpresora->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    todo->addWidget(m_lblImpresora);
    todo->addWidget(salidas);
    todo->addWidget(m_chkUnPdf);
    todo->addStretch(1);
    todo->addWidget(pie);

    QWidget *const orden[] = {m_opt->button(Oficial),
                              m_opt->button(Borrador),
                              m_chkInteresado,
                              m_chkAdministracion,
                              m_txtFecha,
                              m_btnOpciones,
                              m_btnVistaPrevia,
                              m_btnGuardarPdf,
                              m_chkUnPdf,
                              m_btnAceptar,
                              m_btnCancelar};
    for (size_t i = 1; i < std::size(orden); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmImOf::Anadir_captions()
{
    setWindowTitle(msj(Msj::Imprimir));
    m_frameTipo->setTitle(msj(Msj::TipoImpreso));
    m_opt->button(Oficial)->setText(msj(Msj::ImpresoOficial));
    m_opt->button(Borrador)->setText(msj(Msj::ImpresoBorrador));
    m_fraDestinatario->setTitle(msj(Msj::Destinatario));
    m_chkInteresado->setText(msj(Msj::CopiaInteresado));
    m_chkAdministracion->setText(msj(Msj::CopiaAdministracion));
    m_fraFecha->setTitle(msj(Msj::FechaPresentacion));
    m_txtFecha->setAccessibleName(msj(Msj::FechaPresentacion));
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
    const QDate hoy = QDate::currentDate();
    m_txtFecha->mostrarFecha(hoy.year() * 10000 + hoy.month() * 100 + hoy.day());
    peticion().PedirOficial();
    m_chkUnPdf->setChecked(true);
}

void FrmImOf::PresentaDatos()
{
    const QSignalBlocker sinGrupo(m_opt);
    const QSignalBlocker sinInteresado(m_chkInteresado);
    const QSignalBlocker sinAdministracion(m_chkAdministracion);
    const bool oficial = peticion().TIPOIMP() == u"O";
    const bool interesado = peticion().COPIAINT() == u"X";
    const bool administracion = peticion().COPIAADM() == u"X";
    m_opt->button(oficial ? Oficial : Borrador)->setChecked(true);
    m_chkInteresado->setEnabled(oficial);
    m_chkAdministracion->setEnabled(oficial);
    m_chkInteresado->setChecked(interesado);
    m_chkAdministracion->setChecked(administracion);
    for (QPushButton *boton : {m_btnAceptar, m_btnVistaPrevia, m_btnGuardarPdf})
        boton->setEnabled(peticion().HayCopias());
    m_chkUnPdf->setEnabled(interesado && administracion);
}

void FrmImOf::conectar()
{
    connect(m_opt, &QButtonGroup::idToggled, this, [this](int tipo, bool elegido) {
        if (!elegido)
            return;
        tipo == Oficial ? peticion().PedirOficial() : peticion().PedirBorrador();
        PresentaDatos();
    });
    connect(m_chkInteresado, &QCheckBox::toggled, this,
            [this](bool marcada) { alMarcar(marcada, &cImOf::COPIAINT); });
    connect(m_chkAdministracion, &QCheckBox::toggled, this,
            [this](bool marcada) { alMarcar(marcada, &cImOf::COPIAADM); });
    alPulsar(m_btnOpciones, [this] {
        m_salida.opciones(this);
        mostrarQue();
    });
    alPulsar(m_btnVistaPrevia, [this] { vistaPrevia(); });
    alPulsar(m_btnGuardarPdf, [this] { guardarPdf(); });
    alPulsar(m_btnAceptar, [this] { imprimir(); });
    alPulsarSinConfirmar(m_btnCancelar, [this] { cerrarA(alCerrarMarco()); });
}

void FrmImOf::alMarcar(bool marcada, void (cImOf::*propiedad)(const QString &))
{
    (peticion().*propiedad)(marcada ? u"X"_s : QString());
    PresentaDatos();
}

bool FrmImOf::ValidarFecha()
{
    const auto leida = comprobarFechaPresentacion(m_txtFecha->text(), unico::la<cFecha>());
    if (leida.valida())
        peticion().FECHAPRE(leida.fecha);
    else {
        mensajes::aviso(this, leida.titulo, leida.mensaje);
        m_txtFecha->setFocus(Qt::OtherFocusReason);
    }
    return leida.valida();
}

void FrmImOf::imprimir()
{
    const bool aFichero = !m_salida.ficheros(copiasPedidas(peticion())).isEmpty();
    if (!aFichero && !SalidaImpresora::hayImpresoras()) {
        mensajes::informacion(this, windowTitle(), msj(Msj::SinImpresoras));
        return;
    }
    if (!ValidarFecha())
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
    if (!ValidarFecha())
        return;
    TrabajoImpresion trabajo(peticion());
    m_salida.vistaPrevia(this, trabajo);
}

void FrmImOf::guardarPdf()
{
    if (!ValidarFecha())
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
