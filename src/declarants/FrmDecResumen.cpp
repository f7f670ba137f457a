#include "declarants/FrmDecResumen.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/NuevaDeclaracion.h"
#include "declarants/cDecResumen.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using Fila = DeclaracionListada;

namespace {
enum Columna { CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE, NUMERO_PERIODO };
}

static QString periodoDe(const Fila &fila)
{
    return textoPeriodo(fila.periodicidad, fila.periodo);
}

/// The key of one of which the exercise is not sure.
static QString ejercicioDe(const Fila &fila)
{
    return fila.ejercicio == 0 ? u"#%1"_s.arg(fila.csde) : QString::number(fila.ejercicio);
}

FrmDecResumen::FrmDecResumen(QWidget *padre)
    : PantallaBase(u"FrmDecResumen"_s, padre)
    , m_lbldni(nuevaEtiqueta(u"lbldni"_s, this))
    , m_lblnombre(nuevaEtiqueta(u"lblnombre"_s, this))
    , m_nueva(new NuevaDeclaracion(this))
    , m_imgNueva(crearBoton(u"ImgNueva"_s))
    , m_cmdAbandonar(crearBoton(u"cmdAbandonar"_s))
    , m_flxDeclaraciones(new QTableView(this))
    , m_modelo(new ModeloFilas<Fila>(this))
    , m_cmdDatos(crearBoton(u"cmdDatos"_s))
    , m_cmdImprimir(crearBoton(u"cmdImprimir"_s))
    , m_cmdEliminar(crearBoton(u"cmdEliminar"_s))
    , m_cmdDeclarante(crearBoton(u"cmdDeclarante"_s))
    , m_cmdCerrar(crearBoton(u"cmdCerrar"_s))
    , m_lblNumDecla(nuevaEtiqueta(u"lblNumDecla"_s, this))
{
    auto &cabecera = unico::la<cDecResumen>();
    const auto pedida = cabecera.TomarPedida(); // not to be left for another declarant's summary
    // whoever opens this screen goes on with its own header when it cannot be shown
    LeerDeclarante();
    cabecera.CargarDeclaraciones();
    cabecera.MODO(ModoCabecera::Lista);
    if (cabecera.ENTRADA() == Entrada::Abrir)
        cabecera.CSDE(0);
    Anadir_captions();
    prepararGrid();
    ponerIconos();
    disponer();
    conectar();
    mostrarNueva(false);
    PresentaDatos();
    if (pedida)
        atender(*pedida);
}

QPushButton *FrmDecResumen::crearBoton(const QString &nombre)
{
    auto *boton = new QPushButton(this);
    boton->setObjectName(nombre);
    boton->setAutoDefault(false);
    return boton;
}

void FrmDecResumen::ponerIconos()
{
    m_imgNueva->setIcon(icono(Icono::Declaracion));
    m_cmdDatos->setIcon(icono(Icono::Abrir));
    m_cmdImprimir->setIcon(icono(Icono::Imprimir));
    m_cmdEliminar->setIcon(icono(Icono::Eliminar));
    m_cmdDeclarante->setIcon(icono(Icono::Declarante));
    m_cmdCerrar->setIcon(icono(Icono::Salir));
}

void FrmDecResumen::prepararGrid()
{
    m_flxDeclaraciones->setObjectName(u"flxDeclaraciones"_s);
    m_flxDeclaraciones->setModel(m_modelo);
    prepararTablaDeVarias(m_flxDeclaraciones);
    for (const int oculta : {CSDE, PERIODICIDAD, TIPOLOGIA, NUMERO_PERIODO})
        m_flxDeclaraciones->setColumnHidden(oculta, true);
    const int letra = fontMetrics().averageCharWidth();
    m_flxDeclaraciones->setColumnWidth(EJERCICIO, 14 * letra);
    m_flxDeclaraciones->setColumnWidth(MODELO, 12 * letra);
    m_flxDeclaraciones->setColumnWidth(IMPORTE, 26 * letra);
    m_flxDeclaraciones->horizontalHeader()->setStretchLastSection(false);
    m_flxDeclaraciones->horizontalHeader()->setSectionResizeMode(PERIODO, QHeaderView::Stretch);
}

void FrmDecResumen::conectar()
{
    connect(m_flxDeclaraciones->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmDecResumen::alSeleccionar);
    connect(m_flxDeclaraciones, &QTableView::activated, m_cmdDatos, &QPushButton::click);
    ponerAcciones(
        m_flxDeclaraciones,
        {{m_cmdDatos, {}}, {m_cmdImprimir, Qt::CTRL | Qt::Key_P}, {m_cmdEliminar, Qt::Key_Delete}});
    alPulsar(m_imgNueva, [this] { nueva(); });
    alPulsarSinConfirmar(m_cmdAbandonar, [this] { abandonarNueva(); });
    alPulsarSinConfirmar(m_cmdDatos, [this] { abrir(); });
    alPulsarSinConfirmar(m_cmdImprimir, [this] { imprimir(); });
    alPulsarSinConfirmar(m_cmdEliminar, [this] { eliminar(); });
    alPulsarSinConfirmar(m_cmdDeclarante, [this] { verDeclarante(); });
    alPulsarSinConfirmar(m_cmdCerrar, [this] { cerrarA(Pantalla::Ninguna); });
}

/// Created in reading order, which is the order of Tab.
void FrmDecResumen::disponer()
{
    QFont grande = font();
    grande.setPointSizeF(grande.pointSizeF() * 1.35);
    grande.setBold(true);
    m_lblnombre->setFont(grande);

    auto *izquierda = new QVBoxLayout;
    izquierda->setSpacing(8);
    izquierda->addWidget(m_nueva);
    izquierda->addStretch(1);
    izquierda->addWidget(m_lblNumDecla);
    auto *arriba = new QVBoxLayout;
    arriba->setSpacing(8);
    arriba->addWidget(m_imgNueva);
    arriba->addWidget(m_cmdAbandonar);
    arriba->addStretch(1);
    auto *derecha = new QVBoxLayout;
    derecha->setSpacing(8);
    for (auto *boton : {m_cmdDatos, m_cmdImprimir, m_cmdEliminar, m_cmdDeclarante})
        derecha->addWidget(boton);
    derecha->addStretch(1);
    derecha->addWidget(m_cmdCerrar);

    auto *celdas = new QGridLayout(this);
    celdas->setContentsMargins(MargenPantalla);
    celdas->setHorizontalSpacing(16);
    celdas->setVerticalSpacing(12);
    auto *titulo = new QVBoxLayout;
    titulo->setSpacing(2);
    titulo->addWidget(m_lblnombre);
    titulo->addWidget(m_lbldni);
    celdas->addLayout(titulo, 0, 0);
    celdas->addLayout(izquierda, 1, 0);
    celdas->addLayout(arriba, 1, 1);
    celdas->addWidget(m_flxDeclaraciones, 2, 0);
    celdas->addLayout(derecha, 2, 1);
    celdas->setColumnStretch(0, 1);
    celdas->setRowStretch(2, 1);
}

QSize FrmDecResumen::sizeHint() const
{
    const int letra = fontMetrics().averageCharWidth();
    return QWidget::sizeHint().expandedTo({110 * letra, 30 * fontMetrics().height()});
}

void FrmDecResumen::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloResumen));
    m_nueva->Anadir_captions();
    rotular(m_imgNueva, Msj::BotonNuevaDeclaracion, Msj::PistaNuevaDeclaracion);
    rotular(m_cmdAbandonar, Msj::BotonCancelar, Msj::PistaAbandonarNueva);
    rotular(m_cmdDatos, Msj::BotonDatos, Msj::PistaDatos);
    rotular(m_cmdImprimir, Msj::Imprimir, Msj::PistaImprimir);
    rotular(m_cmdEliminar, Msj::BotonEliminarDeclaracion, Msj::PistaEliminarDeclaracion);
    rotular(m_cmdDeclarante, Msj::BotonDeclarante, Msj::PistaDeclarante);
    rotular(m_cmdCerrar, Msj::BotonCerrar, Msj::PistaVolverMenu);
    m_flxDeclaraciones->setAccessibleName(msj(Msj::AccesibleListaDeclaraciones));

    const auto numero
        = [](auto dato) { return [dato](const Fila &f) { return QString::number(f.*dato); }; };
    m_modelo->columnas({
        {msj(Msj::ColumnaCodigo), numero(&Fila::csde)},
        {msj(Msj::Ejercicio), ejercicioDe},
        {msj(Msj::ColumnaPeriodicidad), numero(&Fila::periodicidad)},
        {msj(Msj::Periodo), periodoDe},
        {msj(Msj::Modelo), [](const Fila &f) { return f.modelo; }},
        {msj(Msj::ColumnaTipologia), numero(&Fila::tipologia)},
        {msj(Msj::ColumnaImporte),
         [](const Fila &f) {
             return f.danada ? msj(Msj::RegistroDanado) : textoImporte(f.importe);
         },
         Qt::AlignRight},
        {msj(Msj::Periodo), numero(&Fila::periodo)},
    });
}

void FrmDecResumen::alCambiarIdioma()
{
    m_nueva->alCambiarIdioma();
    PresentaDatos();
}

/// After a failure nothing is listed, and nothing can be done to a return.
void FrmDecResumen::vaciar()
{
    const qint32 elegida = unico::la<cDecResumen>().CSDE();
    m_modelo->filas({});
    m_lblNumDecla->clear();
    PresentaBotones();
    unico::la<cDecResumen>().CSDE(elegida);
}

void FrmDecResumen::CargarFlxDeclaraciones()
{
    auto &cabecera = unico::la<cDecResumen>();
    const qint32 elegida = cabecera.CSDE();
    m_modelo->filas(cabecera.CargarDeclaraciones());
    seleccionar(elegida);
}

void FrmDecResumen::PresentaDatos()
{
    const auto &cabecera = unico::la<cDecResumen>();
    m_lbldni->setText(msj(Msj::EtiquetaDni) + u' ' + cabecera.DNI());
    m_lblnombre->setText(cabecera.NOMBRE());
    CargarFlxDeclaraciones();
    const qint32 numero = cabecera.NUMDECLASEL();
    m_lblNumDecla->setText(numero == 0 ? msj(Msj::NoExistenDeclaraciones)
                                       : QString::number(numero) + u' '
                                   + msj(Msj::DeclaracionesSeleccionadas));
    PresentaBotones();
}

void FrmDecResumen::PresentaBotones()
{
    const bool hay = filaActual() != nullptr;
    for (auto *boton : {m_cmdDatos, m_cmdEliminar})
        boton->setEnabled(hay);
    m_cmdImprimir->setEnabled(m_flxDeclaraciones->selectionModel()->hasSelection());
}
