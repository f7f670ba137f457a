#include "declarants/frmDecDatos.h"

#include "core/CEntrada.h"
#include "core/Unico.h"
#include "declarants/FichaDeclarante.h"
#include "declarants/Listas.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecResumen.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"
#include "widgets/SelectorLista.h"

#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using namespace cajas;

static cDecDatos &registro()
{
    return unico::la<cDecDatos>();
}

frmDecDatos::frmDecDatos(QWidget *padre)
    : PantallaBase(u"frmDecDatos"_s, padre)
    , m_ficha(new FichaDeclarante(this))
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cmdAceptar(m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s, Icono::Aceptar))
    , m_cmdCancelar(m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar))
{
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(12);
    todo->addWidget(m_ficha, 1);
    todo->addWidget(m_botones);
    crearListas();
    conectarCajas();
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cancelar(); });
    Anadir_captions();
    cargarListas();
    PresentaDatos();
    m_nombre = registro().DNI() + u" - "_s + registro().NOMBRE();
}

void frmDecDatos::crearListas()
{
    m_listas = {{
        {VIA, DOMICILIO, m_ficha->cmdVia(), new SelectorLista(u"lstVia"_s, this),
         &frmDecDatos::tomarVia},
        {CODPROV, CODPOS, m_ficha->cmdProvincia(), new SelectorLista(u"lstCodProv"_s, this),
         &frmDecDatos::tomarProvincia},
        {CODMUN, TELEFONO, m_ficha->cmdMunicipio(), new SelectorLista(u"lstCodMun"_s, this),
         &frmDecDatos::tomarMunicipio},
    }};
    for (const auto &lista : m_listas) {
        alPulsar(lista.boton, [this, &lista] { abrirLista(lista); });
        connect(lista.selector, &SelectorLista::cancelado, this,
                [this, &lista] { cerrarLista(lista.codigo); });
        lista.selector->alElegir = [this, &lista](const QString &codigo, const QString &nombre) {
            (this->*lista.tomar)(codigo, nombre);
            cerrarLista(lista.siguiente);
        };
    }
}

void frmDecDatos::conectarCajas()
{
    for (int i = 0; i < Total; ++i) {
        const auto campo = static_cast<Cual>(i);
        m_ficha->caja(campo)->alConfirmar = [this, campo] { return tomarCampo(campo); };
    }
    m_ficha->caja(DNI)->alConfirmar = [this] { return tomarDni(); };
    m_ficha->caja(CODPROV)->alConfirmar = [this] { return tomarCodigoProvincia(); };
    m_ficha->caja(CODMUN)->alConfirmar = [this] { return tomarCodigoMunicipio(); };
}

void frmDecDatos::cargarListas()
{
    m_listas[VIAS].selector->cargar(cargarVias());
    m_listas[PROVINCIAS].selector->cargar(cargarProvincias());
    m_listas[MUNICIPIOS].selector->cargar(cargarMunicipios());
}

void frmDecDatos::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloDatosDeclarante));
    m_ficha->Anadir_captions();
    m_listas[VIAS].selector->cabecera(msj(Msj::EtiquetaVia), msj(Msj::AccesibleSelectorVia));
    m_listas[PROVINCIAS].selector->cabecera(msj(Msj::CabeceraProvincia),
                                            msj(Msj::AccesibleSelectorProvincia));
    m_listas[MUNICIPIOS].selector->cabecera(msj(Msj::CabeceraMunicipio),
                                            msj(Msj::AccesibleSelectorMunicipio));
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
    m_cmdAceptar->setToolTip(msj(Msj::PistaGuardarDeclarante));
}

void frmDecDatos::alCambiarIdioma()
{
    cargarListas();
    registro().LeerNombreProvincia();
    m_ficha->PresentaNombres(registro(), nombreVia());
}

QString frmDecDatos::nombreVia() const
{
    const auto *via = buscarCodigo(m_listas[VIAS].selector->lista(), registro().VIA());
    return via ? via->nombre : QString();
}

void frmDecDatos::PresentaDatos()
{
    m_ficha->PresentaDatos(registro(), nombreVia());
}

void frmDecDatos::showEvent(QShowEvent *evento)
{
    PantallaBase::showEvent(evento);
    if (entraSinFoco(*evento))
        m_ficha->caja(DNI)->setFocus(Qt::OtherFocusReason);
}

bool frmDecDatos::tomarCampo(Cual campo)
{
    if (cajas::tomar(campo, registro(), m_ficha->caja(campo)->text()))
        m_modificado = true;
    PresentaDatos();
    return true;
}

/// An identifier that another declarant has is told at once, but stands in nobody's way.
bool frmDecDatos::tomarDni()
{
    tomarCampo(DNI);
    const QString dni = registro().DNI();
    const qint32 otro = dni.isEmpty() ? 0 : registro().ObtenerCodigoDeclarante(dni);
    if (otro == 0 || otro == registro().CSCO() || dni == m_dniRepetido)
        return true;
    m_dniRepetido = dni;
    aviso(textoGuardarDeclarante(registro().CSCO() == 0 ? 1 : 2));
    return false;
}

/// A code that is not in the table opens the list; none at all empties the province first.
bool frmDecDatos::tomarCodigoProvincia()
{
    const QString codigo = campos::valor(RegDeclarante::CODPROV, m_ficha->caja(CODPROV)->text());
    const auto &lista = m_listas[PROVINCIAS];
    if (codigo != registro().CODPROV()) {
        if (const auto *provincia = buscarCodigo(lista.selector->lista(), codigo)) {
            tomarProvincia(codigo, provincia->nombre);
        } else {
            if (codigo.toInt() == 0) {
                tomarProvincia({}, {});
                PresentaDatos();
            }
            abrirLista(lista);
            return false;
        }
    }
    PresentaDatos();
    return true;
}

/// The name follows from the code; a code that is not in the table opens the list.
bool frmDecDatos::tomarCodigoMunicipio()
{
    const QString codigo = campos::valor(RegDeclarante::CODMUN, m_ficha->caja(CODMUN)->text());
    const auto &lista = m_listas[MUNICIPIOS];
    if (codigo != registro().CODMUN()) {
        const auto *municipio = buscarCodigo(lista.selector->lista(), codigo);
        if (!municipio && !codigo.isEmpty()) {
            abrirLista(lista);
            return false;
        }
        tomarMunicipio(codigo, municipio ? municipio->nombre : QString());
    }
    PresentaDatos();
    return true;
}

void frmDecDatos::tomarVia(const QString &codigo, const QString &)
{
    m_modificado = cajas::tomar(VIA, registro(), codigo) || m_modificado;
}

void frmDecDatos::tomarProvincia(const QString &codigo, const QString &nombre)
{
    if (campos::valor(RegDeclarante::CODPROV, codigo) == registro().CODPROV())
        return;
    registro().CambiarProvincia(codigo, nombre);
    m_modificado = true;
}

void frmDecDatos::tomarMunicipio(const QString &codigo, const QString &nombre)
{
    const bool otroCodigo = cajas::tomar(CODMUN, registro(), codigo);
    const bool otroNombre = cajas::tomar(NOMMUN, registro(), nombre);
    m_modificado = m_modificado || otroCodigo || otroNombre;
}

bool frmDecDatos::ValidarCampos()
{
    const qint16 codigo = registro().ValidarDatosDeclarante(registro().RegistroValidacion());
    const QString texto = textoValidacionDeclarante(codigo);
    if (texto.isEmpty())
        return true;
    aviso(texto);
    recuperarFoco(m_ficha->caja(deValidacion(campoValidacionDeclarante(codigo))));
    return false;
}

qint16 frmDecDatos::GuardarDeclarante()
{
    const qint16 codigo = registro().GuardarDeclarante(registro().RegistroCompleto());
    if (const QString texto = textoGuardarDeclarante(codigo); !texto.isEmpty())
        aviso(texto);
    return codigo;
}

bool frmDecDatos::modificada() const
{
    for (int i = 0; i < Total; ++i) {
        const auto caja = static_cast<Cual>(i);
        if (caja != VIAAUX && m_ficha->caja(caja)->text() != presentar(caja, registro()))
            return true;
    }
    return m_modificado;
}

void frmDecDatos::aceptar()
{
    if (m_porEntregar)
        entregar();
    if (!ValidarCampos())
        return;
    if (m_modificado) {
        if (!guardar())
            return;
        entregar();
    } else {
        unico::la<cDecResumen>().CSDE(0);
    }
    cerrarA(Pantalla::Resumen);
}

/// Whether the record is stored now.
bool frmDecDatos::guardar()
{
    const auto estado = registro().CambioDesdeCarga();
    m_eliminado = estado == EstadoCarga::Eliminado;
    switch (consultarGuardado(this, estado, m_nombre)) {
    case Decision::Guardar:
        break;
    case Decision::Conservar:
        registro().CargarDeclarante(registro().CSCO());
        m_modificado = false;
        PresentaDatos();
        return false;
    case Decision::Seguir:
        return false;
    }
    if (GuardarDeclarante() != 0)
        return false;
    m_modificado = false;
    m_porEntregar = true;
    return true;
}

/// What the summary is to show. After a failure in here accepting again begins with this.
void frmDecDatos::entregar()
{
    auto &datos = registro();
    auto &resumen = unico::la<cDecResumen>();
    datos.TomarGuardado();
    if (datos.MODO() == Modo::Alta) {
        resumen.ENTRADA(Entrada::Abrir);
    } else {
        resumen.ENTRADA(Entrada::Vuelta);
        resumen.CSDE(0);
    }
    resumen.TomarDeclarante(datos.CSCO(), datos.DNI(), datos.NOMBRE());
    unico::la<CEntrada>().InicializarContadores();
    m_porEntregar = false;
    decir(msj(Msj::DeclaranteGuardado, datos.DNI(), datos.NOMBRE()));
    Q_EMIT datosCambiados(datos.CSCO());
}

void frmDecDatos::cancelar()
{
    abandonarA(alCerrarMarco());
}

Pantalla frmDecDatos::alCerrarMarco()
{
    if (registro().MODO() != Modo::Consulta || m_eliminado)
        return Pantalla::Ninguna;
    auto &resumen = unico::la<cDecResumen>();
    resumen.ENTRADA(Entrada::Vuelta);
    resumen.CSDE(0);
    return Pantalla::Resumen;
}
