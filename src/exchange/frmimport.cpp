#include "exchange/frmimport.h"

#include "core/CEntrada.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/CamposDeclarante.h"
#include "exchange/cImportar.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"
#include "widgets/Navegador.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QUrl>

using namespace Qt::StringLiterals;

/// The counters of the results frame.
struct DatosCuenta
{
    QStringView nombre;
    Msj texto;
    qint64 Importacion::Cuenta::*valor;
};
static constexpr DatosCuenta Cuentas[] = {
    {u"Importados", Msj::Importados, &Importacion::Cuenta::importados},
    {u"Incorrectos", Msj::Incorrectos, &Importacion::Cuenta::incorrectos},
    {u"Sustituidos", Msj::Sustituidos, &Importacion::Cuenta::sustituidos},
    {u"Ignorados", Msj::Ignorados, &Importacion::Cuenta::ignorados},
};

static cImportar &estado()
{
    return unico::la<cImportar>();
}

frmimport::frmimport(QWidget *padre)
    : PantallaProceso(u"frmimport"_s, padre)
    , m_txtFichero(new QLineEdit(contenido()))
    , m_cmdFichero(new QPushButton(contenido()))
    , m_lblArrastre(nuevaEtiqueta(u"lblArrastre"_s, contenido()))
    , m_chkauto(new QCheckBox(contenido()))
    , m_lblResumen(nuevaEtiqueta(u"lblResumen"_s, contenido()))
    , m_fraResultados(new QGroupBox(contenido()))
    , m_lblErrores(nuevaEtiqueta(u"lblErrores"_s, contenido()))
    , m_lblFicheroErrores(nuevaEtiqueta(u"lblFicheroErrores"_s, contenido()))
    , m_cmdAbrirErrores(new QPushButton(contenido()))
{
    m_txtFichero->setObjectName(u"txtFichero"_s);
    m_lblFichero = nuevaEtiqueta(u"lblFichero"_s, contenido(), m_txtFichero);
    m_cmdFichero->setObjectName(u"cmdFichero"_s);
    m_chkauto->setObjectName(u"chkauto"_s);
    m_fraResultados->setObjectName(u"fraResultados"_s);
    m_cmdAbrirErrores->setObjectName(u"cmdAbrirErrores"_s);
    recibirFicheros([this](const QString &ruta) { tomarFichero(ruta); });
    m_txtFichero->setAcceptDrops(false); // it would take the text of the address
    crearResultados();
    disponer();
    Anadir_captions();
    presentarCuenta({});
    informarErrores(false);
    conectar();
    m_txtFichero->setText(QDir::toNativeSeparators(estado().FICHEROAIMPORTAR()));
}

void frmimport::crearResultados()
{
    auto *rejilla = new QGridLayout(m_fraResultados);
    for (int fila = 0; const DatosCuenta &datos : Cuentas) {
        auto *texto = nuevaEtiqueta(u"lbl"_s + datos.nombre.toString(), m_fraResultados);
        auto *valor = nuevaEtiqueta(u"lblNum"_s + datos.nombre.toString(), m_fraResultados);
        valor->setAlignment(Qt::AlignRight);
        rejilla->addWidget(texto, fila, 0);
        rejilla->addWidget(valor, fila, 1);
        m_cuentas.emplace_back(texto, valor);
        ++fila;
    }
    rejilla->setColumnMinimumWidth(1, 12 * fontMetrics().averageCharWidth());
    rejilla->setColumnStretch(2, 1);
}

QLayout *frmimport::filaFichero()
{
    auto *fila = new QHBoxLayout;
    fila->addWidget(m_txtFichero, 1);
    fila->addWidget(m_cmdFichero);
    return fila;
}

QLayout *frmimport::filaErrores()
{
    m_lblFicheroErrores->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_lblFicheroErrores->setWordWrap(true);
    auto *fila = new QHBoxLayout;
    fila->addWidget(m_lblFicheroErrores, 1);
    fila->addWidget(m_cmdAbrirErrores);
    return fila;
}

void frmimport::disponer()
{
    auto *botones = new BarraBotones(u"fraBotones"_s, contenido());
    m_cmdImportar = botones->anadir(u"cmdImportar"_s, u"picImportar"_s, Icono::Importar);
    m_cmdCancelar = botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar);
    agrandarLetra(m_lblArrastre, 0.9);
    auto *todo = new QVBoxLayout(contenido());
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(8);
    todo->addWidget(m_lblFichero);
    todo->addLayout(filaFichero());
    todo->addWidget(m_lblArrastre);
    todo->addWidget(m_chkauto);
    todo->addWidget(m_lblResumen);
    todo->addWidget(m_fraResultados);
    todo->addWidget(m_lblErrores);
    todo->addLayout(filaErrores());
    todo->addStretch(1);
    todo->addWidget(botones);
}

void frmimport::conectar()
{
    alPulsar(m_cmdFichero, [this] { elegirFichero(); });
    alPulsar(m_cmdImportar, [this] { importar(); });
    alPulsar(m_cmdAbrirErrores, [this] { abrirErrores(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
    connect(m_txtFichero, &QLineEdit::textChanged, this, [this](const QString &texto) {
        estado().FICHEROAIMPORTAR(QDir::fromNativeSeparators(texto.trimmed()));
        m_cmdImportar->setEnabled(!estado().FICHEROAIMPORTAR().isEmpty());
        m_lblResumen->clear();
    });
    // after whatever took the focus away has been done
    connect(
        m_txtFichero, &QLineEdit::editingFinished, this,
        [this] {
            if (m_txtFichero->isModified() && isVisible()
                && motivoNoImportable(estado().FICHEROAIMPORTAR()).isEmpty())
                examinar();
        },
        Qt::QueuedConnection);
    m_cmdImportar->setEnabled(false);
}

QSize frmimport::sizeHint() const
{
    // room for the progress and for the name of the error file
    const int linea = fontMetrics().height();
    return {90 * fontMetrics().averageCharWidth(),
            PantallaProceso::sizeHint().height() + 6 * linea};
}

void frmimport::showEvent(QShowEvent *evento)
{
    PantallaProceso::showEvent(evento);
    if (entraSinFoco(*evento))
        m_txtFichero->setFocus(Qt::OtherFocusReason);
}

void frmimport::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloImportar));
    PantallaProceso::Anadir_captions();
    m_lblFichero->setText(msj(Msj::FicheroAImportar));
    m_cmdFichero->setText(msj(Msj::BotonSeleccionarFichero));
    m_cmdFichero->setToolTip(msj(Msj::PistaElegirOrigen));
    m_lblArrastre->setText(msj(Msj::ArrastreFichero));
    m_chkauto->setText(msj(Msj::ImportacionAutomatica));
    m_chkauto->setToolTip(msj(Msj::PistaAutomatico));
    m_fraResultados->setTitle(msj(Msj::ResultadosImportacion));
    for (qsizetype i = 0; const DatosCuenta &datos : Cuentas)
        m_cuentas[i++].first->setText(msj(datos.texto));
    m_lblErrores->setText(msj(Msj::ConsulteFicheroErrores));
    m_cmdAbrirErrores->setText(msj(Msj::BotonAbrirErrores));
    m_cmdAbrirErrores->setToolTip(msj(Msj::PistaAbrirErrores));
    m_cmdImportar->setText(msj(Msj::BotonImportar));
    m_cmdImportar->setToolTip(msj(Msj::PistaImportarContribuyentes));
    m_cmdCancelar->setText(msj(Msj::BotonCerrar));
    m_cmdCancelar->setToolTip(msj(Msj::PistaVolverMenu));
    if (!m_lblResumen->text().isEmpty())
        presentarResumen();
}

void frmimport::elegirFichero()
{
    const QString anterior = estado().FICHEROAIMPORTAR();
    const QString carpeta = anterior.isEmpty() ? ficheros::propuesta() : QFileInfo(anterior).path();
    const QString ruta
        = ficheros::abrir(this, msj(Msj::BotonSeleccionarFichero), carpeta, u"*.txt;;*.*"_s);
    if (!ruta.isEmpty())
        tomarFichero(ruta);
}

void frmimport::tomarFichero(const QString &ruta)
{
    m_txtFichero->setText(QDir::toNativeSeparators(ruta));
    if (const QString motivo = motivoNoImportable(ruta); !motivo.isEmpty())
        aviso(motivo);
    else
        examinar();
}

frmimport::Huella frmimport::huella() const
{
    const QFileInfo ahora(estado().FICHEROAIMPORTAR());
    return {ahora.filePath(), ahora.lastModified(), ahora.size()};
}

/// Looks through the file once; false when the user stopped that.
bool frmimport::examinar()
{
    m_txtFichero->setModified(false);
    const Huella ahora = huella();
    if (m_examinado == ahora) {
        presentarResumen();
        return true;
    }
    Importacion vista(estado().FICHEROAIMPORTAR(), Existentes::Examinar);
    vista.seguir = [this](qint64 linea) { return paso(linea); };
    const qint64 estimadas = std::get<qint64>(ahora) / (campos::AnchoLinea + 2);
    if (!trabajar(estimadas, [&] { vista.ejecutar(); }) || vista.detenida())
        return false;
    m_resumen = vista.cuenta();
    m_examinado = ahora;
    presentarResumen();
    return true;
}

void frmimport::presentarResumen()
{
    m_lblResumen->setText(msj(Msj::ResumenFichero, QString::number(m_resumen.lineas),
                              QString::number(m_resumen.importados),
                              QString::number(m_resumen.ignorados),
                              QString::number(m_resumen.incorrectos)));
}

void frmimport::importar()
{
    if (trabaja())
        return;
    const QString ruta = estado().FICHEROAIMPORTAR();
    if (const QString motivo = motivoNoImportable(ruta); !motivo.isEmpty()) {
        aviso(motivo);
        return;
    }
    informarErrores(false);
    presentarCuenta({});
    if (!examinar()) {
        if (detenido())
            informarDetenida(0);
        return;
    }
    Importacion importacion(ruta,
                            m_chkauto->isChecked() ? Existentes::Sustituir : Existentes::Detenerse);
    importacion.preguntar = [this](const QString &dni) { return preguntar(dni); };
    importacion.seguir = [&](qint64 linea) {
        presentarCuenta(importacion.cuenta());
        return paso(linea);
    };
    const bool entera = trabajar(m_resumen.lineas, [&] { importacion.ejecutar(); });
    m_examinado = {}; // who is there already has changed
    terminar(importacion, entera);
}

/// Tells what was done. Of a failure the user knows already.
void frmimport::terminar(const Importacion &importacion, bool entera)
{
    const auto &cuenta = importacion.cuenta();
    presentarCuenta(cuenta);
    informarErrores(cuenta.incorrectos > 0);
    unico::la<CEntrada>().InicializarContadores();
    Q_EMIT datosCambiados();
    if (importacion.detenida())
        informarDetenida(cuenta.lineas);
    else if (entera)
        mensajes::informacion(this, windowTitle(), mensajeFinal(cuenta));
}

void frmimport::informarDetenida(qint64 lineas)
{
    mensajes::informacion(this, windowTitle(),
                          msj(Msj::ImportacionDetenida, QString::number(lineas)));
}

Importacion::Respuesta frmimport::preguntar(const QString &dni)
{
    switch (mensajes::preguntaDeVarias(this, windowTitle(), msj(Msj::PreguntaSustituir, dni))) {
    case mensajes::Respuesta::Si:
        return Importacion::Respuesta::Si;
    case mensajes::Respuesta::SiATodos:
        return Importacion::Respuesta::SiATodos;
    case mensajes::Respuesta::NoATodos:
        return Importacion::Respuesta::NoATodos;
    default:
        return Importacion::Respuesta::No;
    }
}

void frmimport::presentarCuenta(const Importacion::Cuenta &cuenta)
{
    for (qsizetype i = 0; const DatosCuenta &datos : Cuentas)
        m_cuentas[i++].second->setText(QString::number(cuenta.*datos.valor));
}

void frmimport::informarErrores(bool hay)
{
    m_lblFicheroErrores->setText(QDir::toNativeSeparators(FicheroErrores::ruta()));
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_lblErrores, m_lblFicheroErrores, m_cmdAbrirErrores})
        control->setVisible(hay);
}

void frmimport::abrirErrores()
{
    if (!navegador::abrirFichero(FicheroErrores::ruta()))
        aviso(msj(Msj::ErroresSinPrograma, m_lblFicheroErrores->text()));
}
