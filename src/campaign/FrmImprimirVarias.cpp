#include "campaign/FrmImprimirVarias.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "printing/GuardarCopias.h"
#include "printing/OpcionesImpresion.h"
#include "printing/cImprimirVarias.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QButtonGroup>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using Fila = FilaImprimir;

namespace {
enum Columna { DNI, NOMBRE, DECLARACION, RESULTADO, FICHERO, MOTIVO };
enum Destino { Carpeta, UnFichero, Impresora, Destinos };
constexpr qint64 Pocas = 5; ///< done before a progress bar could be read
} // namespace

static cImprimirVarias &varias()
{
    return unico::la<cImprimirVarias>();
}

FrmImprimirVarias::FrmImprimirVarias(QWidget *padre)
    : PantallaProceso(u"FrmImprimirVarias"_s, padre)
    , m_carpeta(ultimaCarpeta())
    , m_opciones(new OpcionesImpresion(varias().PETICION(), contenido()))
    , m_fraDestino(new QGroupBox(contenido()))
    , m_optDestino(new QButtonGroup(this))
    , m_lblCarpeta(nuevaEtiqueta(u"lblCarpeta"_s, m_fraDestino))
    , m_cmdCarpeta(new QPushButton(m_fraDestino))
    , m_lblImpresora(nuevaEtiqueta(u"lblImpresora"_s, m_fraDestino))
    , m_btnOpciones(new QPushButton(m_fraDestino))
    , m_flxVarias(new QTableView(contenido()))
    , m_modelo(new ModeloFilas<Fila>(this))
    , m_lblResumen(nuevaEtiqueta(u"lblResumen"_s, contenido()))
{
    varias().TomarPedidas();
    m_fraDestino->setObjectName(u"fraDestino"_s);
    m_optDestino->setObjectName(u"optDestino"_s);
    m_cmdCarpeta->setObjectName(u"cmdCarpeta"_s);
    m_btnOpciones->setObjectName(u"btnOpcionesImpresora"_s);
    crearDestino();
    disponer();
    Anadir_captions();
    prepararGrid();
    conectar();
    PresentaDatos();
}

void FrmImprimirVarias::crearDestino()
{
    auto *celdas = new QGridLayout(m_fraDestino);
    celdas->setColumnStretch(0, 1);
    int linea = 0;
    for (const int destino : {Carpeta, UnFichero, Impresora}) {
        auto *opcion = new QRadioButton(m_fraDestino);
        opcion->setObjectName(u"optDestino"_s + QString::number(destino));
        m_optDestino->addButton(opcion, destino);
        celdas->addWidget(opcion, linea++, 0, 1, 2);
        if (destino == UnFichero)
            continue;
        auto *etiqueta = destino == Carpeta ? m_lblCarpeta : m_lblImpresora;
        auto *boton = destino == Carpeta ? m_cmdCarpeta : m_btnOpciones;
        // a path may be long: it never widens the screen
        etiqueta->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        boton->setAutoDefault(false);
        celdas->addWidget(etiqueta, linea, 0);
        celdas->addWidget(boton, linea++, 1);
    }
    m_optDestino->button(Carpeta)->setChecked(true);
}

void FrmImprimirVarias::disponer()
{
    auto *botones = new BarraBotones(u"fraBotones"_s, contenido());
    m_cmdImprimir = botones->anadir(u"cmdImprimir"_s, u"picimp"_s, Icono::Imprimir);
    m_cmdCancelar = botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar);
    auto *arriba = new QHBoxLayout;
    arriba->setSpacing(16);
    arriba->addWidget(m_opciones, 1);
    arriba->addWidget(m_fraDestino, 1);
    auto *todo = new QVBoxLayout(contenido());
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(8);
    todo->addLayout(arriba);
    todo->addWidget(m_flxVarias, 1);
    todo->addWidget(m_lblResumen);
    todo->addWidget(botones);

    QList<QWidget *> orden = m_opciones->orden();
    for (auto *opcion : m_optDestino->buttons())
        orden += opcion;
    orden += {m_cmdCarpeta, m_btnOpciones, m_flxVarias, m_cmdImprimir, m_cmdCancelar};
    enlazarTab(orden);
}

void FrmImprimirVarias::prepararGrid()
{
    m_flxVarias->setObjectName(u"flxVarias"_s);
    m_flxVarias->setModel(m_modelo);
    prepararTablaDeVarias(m_flxVarias);
    ponerAcciones(m_flxVarias, {});
    const int letra = fontMetrics().averageCharWidth();
    static constexpr int anchos[] = {14, 30, 22, 11, 38};
    for (int columna = 0; const int ancho : anchos)
        m_flxVarias->setColumnWidth(columna++, ancho * letra);
    m_flxVarias->horizontalHeader()->setStretchLastSection(true);
}

void FrmImprimirVarias::conectar()
{
    connect(m_opciones, &OpcionesImpresion::cambiada, this, &FrmImprimirVarias::PresentaDestino);
    connect(m_optDestino, &QButtonGroup::idToggled, this, &FrmImprimirVarias::PresentaDestino);
    alPulsar(m_cmdCarpeta, [this] {
        const QString elegida = ficheros::carpeta(this, msj(Msj::DestinoFicheros), m_carpeta);
        if (!elegida.isEmpty())
            m_carpeta = elegida;
        PresentaDestino();
    });
    alPulsar(m_btnOpciones, [this] {
        m_salida.opciones(this);
        PresentaDestino();
    });
    alPulsar(m_cmdImprimir, [this] { imprimir(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
}

QSize FrmImprimirVarias::sizeHint() const
{
    return {165 * fontMetrics().averageCharWidth(), 34 * fontMetrics().height()};
}

void FrmImprimirVarias::showEvent(QShowEvent *evento)
{
    PantallaProceso::showEvent(evento);
    if (entraSinFoco(*evento))
        m_cmdImprimir->setFocus(Qt::OtherFocusReason);
}

static QString textoEstado(const Fila &fila)
{
    if (fila.estado == Fila::Pendiente)
        return {};
    return msj(fila.estado == Fila::Hecha ? Msj::FilaImpresa : Msj::FilaNoImpresa);
}

void FrmImprimirVarias::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloImprimirVarias));
    PantallaProceso::Anadir_captions();
    m_opciones->Anadir_captions();
    m_fraDestino->setTitle(msj(Msj::GrupoDestino));
    static constexpr Msj destinos[Destinos]
        = {Msj::DestinoFicheros, Msj::DestinoUnFichero, Msj::DestinoImpresora};
    for (int i = 0; i < Destinos; ++i)
        m_optDestino->button(i)->setText(msj(destinos[i]));
    rotular(m_cmdCarpeta, Msj::BotonElegirCarpeta, Msj::PistaElegirCarpeta);
    m_btnOpciones->setText(msj(Msj::OpcionesImpresora));
    rotular(m_cmdImprimir, Msj::BotonImprimirTodas, Msj::PistaImprimirTodas);
    rotular(m_cmdCancelar, Msj::BotonCerrar, Msj::PistaVolverMenu);
    m_flxVarias->setAccessibleName(msj(Msj::AccesibleResultadoImpresion));
    m_modelo->columnas({
        {msj(Msj::ColumnaDni), [](const Fila &f) { return f.dni; }},
        {msj(Msj::ColumnaRazonSocial), [](const Fila &f) { return f.nombre; }},
        {msj(Msj::EtiquetaDeclaracion), [](const Fila &f) { return f.cabecera.nombre(); }},
        {msj(Msj::ColumnaResultado), textoEstado},
        {msj(Msj::ColumnaFichero), [](const Fila &f) { return QFileInfo(f.fichero).fileName(); }},
        {msj(Msj::ColumnaMotivo), [](const Fila &f) { return f.motivo; }},
    });
    PresentaDestino();
}

void FrmImprimirVarias::alCambiarIdioma()
{
    PresentaDatos();
}

void FrmImprimirVarias::PresentaDestino()
{
    const int destino = m_optDestino->checkedId();
    m_lblCarpeta->setText(msj(Msj::CarpetaElegida, QDir::toNativeSeparators(m_carpeta)));
    m_lblCarpeta->setToolTip(QDir::toNativeSeparators(m_carpeta));
    m_lblImpresora->setText(msj(Msj::ImpresoraElegida, m_salida.nombre()));
    m_lblImpresora->setToolTip(m_salida.nombre());
    m_lblCarpeta->setEnabled(destino == Carpeta);
    m_cmdCarpeta->setEnabled(destino == Carpeta);
    m_lblImpresora->setEnabled(destino == Impresora);
    m_btnOpciones->setEnabled(destino == Impresora);
    m_cmdImprimir->setEnabled(varias().PETICION().HayCopias() && !varias().filas().isEmpty());
}

void FrmImprimirVarias::PresentaDatos()
{
    const auto &filas = varias().filas();
    const auto numero
        = [](Fila::Estado estado) { return QString::number(varias().cuantas(estado)); };
    m_modelo->filas(filas);
    m_lblResumen->setText(
        varias().cuantas(Fila::Pendiente) == filas.size()
            ? msj(Msj::CuantasParaImprimir, QString::number(filas.size()))
            : msj(Msj::VariasImpresas, numero(Fila::Hecha), numero(Fila::NoHecha)));
    m_flxVarias->selectRow(std::max(0, m_modelo->buscar(&Fila::estado, Fila::NoHecha)));
    m_flxVarias->scrollTo(m_flxVarias->currentIndex());
    PresentaDestino();
}

void FrmImprimirVarias::imprimir()
{
    if (!m_opciones->ValidarFecha())
        return;
    switch (m_optDestino->checkedId()) {
    case Carpeta:
        return imprimirEnCarpeta();
    case UnFichero:
        return imprimirEnFichero(ficheros::guardar(
            this, msj(Msj::GuardarPdf), QDir(m_carpeta).filePath(varias().nombreConjunto()),
            msj(Msj::FiltroPdf)));
    default:
        return imprimirEnImpresora();
    }
}

void FrmImprimirVarias::imprimirEnCarpeta()
{
    using impresionVarias::SiExiste;
    if (!QFileInfo(m_carpeta).isDir())
        return aviso(msj(Msj::CliCarpetaNoExiste, QDir::toNativeSeparators(m_carpeta)));
    auto siExiste = SiExiste::Dejar;
    if (const auto cuantos = varias().MirarExistentes(m_carpeta); cuantos > 0) {
        const auto respuesta
            = mensajes::sustituir(this, msj(Msj::TituloConfirmacion),
                                  msj(Msj::PreguntaSobrescribirVarios, QString::number(cuantos)));
        if (respuesta == mensajes::Sustituir::Cancelar)
            return;
        if (respuesta == mensajes::Sustituir::Si)
            siExiste = SiExiste::SustituirVistos;
    }
    ultimaCarpeta(m_carpeta);
    hacer([&](const impresionVarias::Seguir &seguir) {
        return impresionVarias::enCarpeta(varias(), m_carpeta, siExiste, seguir);
    });
}

void FrmImprimirVarias::imprimirEnFichero(const QString &ruta)
{
    if (ruta.isEmpty())
        return;
    ultimaCarpeta(QFileInfo(ruta).absolutePath());
    hacer([&](const impresionVarias::Seguir &seguir) {
        return impresionVarias::enFichero(varias(), ruta, seguir);
    });
}

void FrmImprimirVarias::imprimirEnImpresora()
{
    if (const QString fichero = m_salida.fichero(); !fichero.isEmpty()) {
        if (aceptaSobrescribir(this, {fichero}))
            imprimirEnFichero(fichero);
        return;
    }
    if (!SalidaImpresora::hayImpresoras())
        return mensajes::informacion(this, windowTitle(), msj(Msj::SinImpresoras));
    const auto enviar = [this](TrabajoImpresion &trabajo) { return m_salida.imprimir(trabajo); };
    hacer([&](const impresionVarias::Seguir &seguir) {
        return impresionVarias::enImpresora(varias(), m_salida.nombre(), enviar, seguir);
    });
}

void FrmImprimirVarias::hacer(const Trabajo &trabajo)
{
    QString motivo;
    const auto seguir = [this](qint64 cual) { return paso(cual, Msj::ProgresoDeclaracion); };
    trabajar(
        varias().filas().size(), [&] { motivo = trabajo(seguir); }, Pocas);
    PresentaDatos();
    if (!motivo.isEmpty())
        aviso(motivo);
    decir(m_lblResumen->text());
}
