#include "campaign/FrmImportarDeclaraciones.h"

#include "campaign/ModeloHoja.h"
#include "core/CEntrada.h"
#include "core/GuardarFichero.h"
#include "core/LectorLineas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/cUtilidadesGrid.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using Fila = FilaDeclaraciones;

FrmImportarDeclaraciones::FrmImportarDeclaraciones(QWidget *padre)
    : PantallaProceso(u"FrmImportarDeclaraciones"_s, padre)
    , m_txtFichero(new QLineEdit(contenido()))
    , m_cmdFichero(new QPushButton(contenido()))
    , m_lblGuia(nuevaEtiqueta(u"lblGuia"_s, contenido()))
    , m_lblArrastre(nuevaEtiqueta(u"lblArrastre"_s, contenido()))
    , m_flxHoja(new QTableView(contenido()))
    , m_modelo(new ModeloHoja(m_hoja, this))
    , m_lblResumen(nuevaEtiqueta(u"lblResumen"_s, contenido()))
    , m_botones(new BarraBotones(u"fraBotones"_s, contenido()))
    , m_cmdGuardar(m_botones->anadir(u"cmdGuardar"_s, u"picGuardar"_s, Icono::Aceptar))
    , m_cmdRechazadas(m_botones->anadir(u"cmdRechazadas"_s, {}, Icono::Exportar))
    , m_cmdCancelar(m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar))
{
    m_txtFichero->setObjectName(u"txtFichero"_s);
    m_txtFichero->setReadOnly(true);
    m_txtFichero->setAcceptDrops(false);
    m_lblFichero = nuevaEtiqueta(u"lblFichero"_s, contenido(), m_cmdFichero);
    m_cmdFichero->setObjectName(u"cmdFichero"_s);
    for (auto *etiqueta : {m_lblGuia, m_lblResumen})
        etiqueta->setWordWrap(true);
    recibirFicheros([this](const QString &ruta) { leer(ruta); });
    prepararGrid();
    disponer();
    Anadir_captions();
    conectar();
    PresentaDatos();
}

void FrmImportarDeclaraciones::prepararGrid()
{
    m_flxHoja->setObjectName(u"flxHoja"_s);
    m_flxHoja->setModel(m_modelo);
    prepararTablaDeVarias(m_flxHoja);
    ponerAcciones(m_flxHoja, {});
    const int letra = fontMetrics().averageCharWidth();
    static constexpr int anchos[] = {4, 7, 14, 11, 14, 13, 20, 20};
    for (int columna = 0; const int ancho : anchos)
        m_flxHoja->setColumnWidth(columna++, ancho * letra);
}

void FrmImportarDeclaraciones::disponer()
{
    agrandarLetra(m_lblGuia, 0.9);
    agrandarLetra(m_lblArrastre, 0.9);
    auto *fichero = new QHBoxLayout;
    fichero->addWidget(m_txtFichero, 1);
    fichero->addWidget(m_cmdFichero);
    auto *todo = new QVBoxLayout(contenido());
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(8);
    todo->addWidget(m_lblFichero);
    todo->addLayout(fichero);
    todo->addWidget(m_lblArrastre);
    todo->addWidget(m_lblGuia);
    todo->addWidget(m_flxHoja, 1);
    todo->addWidget(m_lblResumen);
    todo->addWidget(m_botones);
}

void FrmImportarDeclaraciones::conectar()
{
    alPulsar(m_cmdFichero, [this] { elegirFichero(); });
    alPulsar(m_cmdGuardar, [this] { guardar(); });
    alPulsar(m_cmdRechazadas, [this] { guardarRechazadas(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
    connect(m_modelo, &ModeloHoja::marcada, this, &FrmImportarDeclaraciones::PresentaDatos);
    m_flxHoja->installEventFilter(this);
}

/// The space bar ticks the rows selected, or unticks them.
bool FrmImportarDeclaraciones::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress
        || static_cast<QKeyEvent *>(evento)->key() != Qt::Key_Space)
        return PantallaProceso::eventFilter(objeto, evento);
    for (const auto &fila : m_flxHoja->selectionModel()->selectedRows())
        m_modelo->alternar(fila.row());
    return true;
}

QSize FrmImportarDeclaraciones::sizeHint() const
{
    return {140 * fontMetrics().averageCharWidth(), 34 * fontMetrics().height()};
}

void FrmImportarDeclaraciones::showEvent(QShowEvent *evento)
{
    PantallaProceso::showEvent(evento);
    if (!evento->spontaneous())
        m_cmdFichero->setFocus(Qt::OtherFocusReason);
}

void FrmImportarDeclaraciones::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloImportarDeclaraciones));
    PantallaProceso::Anadir_captions();
    m_lblFichero->setText(msj(Msj::FicheroDeDeclaraciones));
    m_txtFichero->setAccessibleName(msj(Msj::FicheroDeDeclaraciones));
    m_cmdFichero->setText(msj(Msj::BotonSeleccionarFichero));
    m_cmdFichero->setToolTip(msj(Msj::PistaElegirOrigen));
    m_lblArrastre->setText(msj(Msj::ArrastreFichero));
    m_lblGuia->setText(msj(Msj::GuiaHoja));
    m_flxHoja->setAccessibleName(msj(Msj::AccesibleFilasHoja));
    rotular(m_cmdGuardar, Msj::BotonGuardarMarcadas, Msj::PistaGuardarMarcadas);
    rotular(m_cmdRechazadas, Msj::BotonGuardarRechazadas, Msj::PistaGuardarRechazadas);
    rotular(m_cmdCancelar, Msj::BotonCerrar, Msj::PistaVolverMenu);
}

void FrmImportarDeclaraciones::alCambiarIdioma()
{
    m_modelo->renovar();
    PresentaDatos();
}

void FrmImportarDeclaraciones::PresentaDatos()
{
    const auto guardadas = m_hoja.cuantas(Fila::Guardada);
    const auto rechazadas = m_hoja.cuantas(Fila::Rechazada);
    const auto perdidas = m_hoja.cuantas(Fila::NoGuardada);
    const auto nuevas = m_hoja.cuantas(Fila::Nueva);
    const auto sustituyen = m_hoja.cuantas(Fila::Sustituye);
    const auto numero = [](qsizetype n) { return QString::number(n); };
    if (guardadas + perdidas > 0)
        m_lblResumen->setText(msj(Msj::HojaGuardada, numero(guardadas),
                                  numero(perdidas + nuevas + sustituyen), numero(rechazadas)));
    else
        m_lblResumen->setText(m_hoja.filas().isEmpty()
                                  ? QString()
                                  : msj(Msj::CuentaHoja, numero(m_hoja.filas().size()),
                                        numero(nuevas), numero(sustituyen), numero(rechazadas),
                                        numero(m_hoja.porGuardar())));
    m_cmdGuardar->setEnabled(m_hoja.porGuardar() > 0);
    m_cmdRechazadas->setEnabled(rechazadas + perdidas > 0);
}

void FrmImportarDeclaraciones::elegirFichero()
{
    const QString anterior = QDir::fromNativeSeparators(m_txtFichero->text());
    const QString ruta
        = ficheros::abrir(this, msj(Msj::BotonSeleccionarFichero),
                          anterior.isEmpty() ? ficheros::propuesta() : QFileInfo(anterior).path(),
                          msj(Msj::FiltroCsv) + u";;*.*"_s);
    if (!ruta.isEmpty())
        leer(ruta);
}

void FrmImportarDeclaraciones::leer(const QString &ruta)
{
    if (const QString motivo = motivoNoLegible(ruta); !motivo.isEmpty())
        return aviso(motivo);
    m_txtFichero->setText(QDir::toNativeSeparators(ruta));
    QString motivo;
    constexpr int anchoUsual = 40; // bytes of a row, for the progress only
    trabajar(QFileInfo(ruta).size() / anchoUsual,
             [&] { motivo = m_hoja.leer(ruta, [this](qint64 fila) { return paso(fila); }); });
    m_modelo->renovar();
    m_flxHoja->selectRow(0);
    PresentaDatos();
    if (!motivo.isEmpty())
        aviso(motivo);
    else if (m_hoja.filas().isEmpty())
        m_lblResumen->setText(msj(Msj::HojaSinFilas));
}

void FrmImportarDeclaraciones::guardar()
{
    const auto sustituyen = std::ranges::count_if(
        m_hoja.filas(), [](const Fila &f) { return f.marcada && f.estado == Fila::Sustituye; });
    if (sustituyen > 0
        && !mensajes::pregunta(
            this, windowTitle(),
            msj(Msj::PreguntaSustituirDeclaraciones, QString::number(sustituyen))))
        return;
    trabajar(m_hoja.porGuardar(),
             [this] { m_hoja.guardar(false, [this](qint64 fila) { return paso(fila); }); });
    m_modelo->renovar();
    PresentaDatos();
    decir(m_lblResumen->text());
    Q_EMIT datosCambiados();
    unico::la<CEntrada>().InicializarContadores();
}

void FrmImportarDeclaraciones::guardarRechazadas()
{
    const QFileInfo leida(QDir::fromNativeSeparators(m_txtFichero->text()));
    const QString propuesta
        = leida.dir().filePath(leida.completeBaseName() + u"_"_s + tituloMotivo() + u".csv"_s);
    const QString ruta = ficheros::guardar(this, windowTitle(), propuesta, msj(Msj::FiltroCsv));
    if (ruta.isEmpty())
        return;
    if (const QString motivo = guardarFichero(ruta, m_hoja.csvRechazadas()); !motivo.isEmpty())
        return aviso(motivo);
    decir(msj(Msj::ListaGuardada, QDir::toNativeSeparators(ruta)));
}
