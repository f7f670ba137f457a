#include "declarants/FrmDecLista.h"

#include "core/CEntrada.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using Fila = DeclaranteListado;

namespace {
enum Columna { CSCO, DNI, NOMBRE, NOMMUN, NOMPROV, NUM430, NUM480 };
}

static cDecLista &estado()
{
    return unico::la<cDecLista>();
}

/// The orders of the service are numbered as the columns that they sort.
static int columnaOrden()
{
    return estado().ORDEN() == cDecLista::PorNombre ? NOMBRE : DNI;
}

FrmDecLista::FrmDecLista(QWidget *padre)
    : PantallaBase(u"FrmDecLista"_s, padre)
    , m_lblOrdenar(nuevaEtiqueta(u"lblOrdenar"_s, this))
    , m_flxDeclarantes(new QTableView(this))
    , m_modelo(new ModeloFilas<Fila>(this))
    , m_busqueda(new cUtilidadesGrid(m_flxDeclarantes))
    , m_lblVacio(nuevaEtiqueta(u"lblVacio"_s, m_flxDeclarantes->viewport()))
    , m_lblBusqueda(nuevaEtiqueta(u"lblBusqueda"_s, this))
    , m_lblNumDecla(nuevaEtiqueta(u"lblNumDecla"_s, this))
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cmdAceptar(m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s, Icono::Aceptar))
    , m_cmdCancelar(m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar))
{
    for (auto *etiqueta : {m_lblOrdenar, m_lblVacio, m_lblBusqueda})
        etiqueta->setWordWrap(true);
    Anadir_captions();
    prepararGrid();
    crearOrdenes();
    disponer();
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
    procedimiento(this, [this] { PresentaDatos(); });
}

void FrmDecLista::prepararGrid()
{
    m_flxDeclarantes->setObjectName(u"flxDeclarantes"_s);
    m_flxDeclarantes->setModel(m_modelo);
    prepararTabla(m_flxDeclarantes);
    for (const int oculta : {CSCO, NUM430, NUM480})
        m_flxDeclarantes->setColumnHidden(oculta, true);
    const int letra = fontMetrics().averageCharWidth();
    m_flxDeclarantes->setColumnWidth(DNI, 16 * letra);
    m_flxDeclarantes->setColumnWidth(NOMMUN, 30 * letra);
    m_flxDeclarantes->setColumnWidth(NOMPROV, 26 * letra);
    auto *cabecera = m_flxDeclarantes->horizontalHeader();
    cabecera->setStretchLastSection(false);
    cabecera->setSectionResizeMode(NOMBRE, QHeaderView::Stretch);
    cabecera->setSectionsClickable(true);
    cabecera->setSortIndicatorShown(true);
    connect(m_flxDeclarantes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmDecLista::alSeleccionar);
    connect(m_flxDeclarantes, &QTableView::activated, m_cmdAceptar, &QPushButton::click);
}

void FrmDecLista::crearOrdenes()
{
    connect(m_flxDeclarantes->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int columna) { procedimiento(this, [&] { ordenar(columna); }); });
    for (const int columna : {DNI, NOMBRE}) {
        const auto tecla = static_cast<Qt::Key>(Qt::Key_0 + columna);
        auto *atajo = new QShortcut(QKeySequence(Qt::CTRL | tecla), this);
        atajo->setContext(Qt::WidgetWithChildrenShortcut);
        connect(atajo, &QShortcut::activated, this,
                [this, columna] { procedimiento(this, [&] { ordenar(columna); }); });
    }
}

void FrmDecLista::disponer()
{
    m_lblVacio->setAlignment(Qt::AlignCenter);
    auto *centro = new QVBoxLayout(m_flxDeclarantes->viewport());
    centro->addWidget(m_lblVacio);
    agrandarLetra(m_lblBusqueda, 0.9);

    auto *pie = new QHBoxLayout;
    pie->addWidget(m_lblNumDecla);
    pie->addWidget(m_botones, 1);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(8);
    todo->addWidget(m_lblOrdenar);
    todo->addWidget(m_flxDeclarantes, 1);
    todo->addWidget(m_lblBusqueda);
    todo->addSpacing(4);
    todo->addLayout(pie);
}

QSize FrmDecLista::sizeHint() const
{
    const int letra = fontMetrics().averageCharWidth();
    return {130 * letra, 32 * fontMetrics().height()};
}

bool FrmDecLista::eliminando() const
{
    return estado().MODO() == Modo::Eliminar;
}

void FrmDecLista::Anadir_captions()
{
    const bool borra = eliminando();
    setWindowTitle(msj(borra ? Msj::TituloEliminarDeclarante : Msj::TituloAbrirDeclarante));
    m_lblOrdenar->setText(msj(Msj::PistaOrdenar));
    m_lblBusqueda->setText(msj(Msj::PistaBusquedaLista));
    m_lblVacio->setText(msj(Msj::SinDeclarantes));
    m_flxDeclarantes->setAccessibleName(msj(Msj::AccesibleListaDeclarantes));
    m_flxDeclarantes->setAccessibleDescription(msj(Msj::PistaBusquedaLista));
    m_modelo->columnas({
        {msj(Msj::ColumnaCodigo), [](const Fila &f) { return QString::number(f.csco); }},
        {msj(Msj::ColumnaDni), [](const Fila &f) { return f.dni; }, Qt::AlignLeft,
         msj(Msj::PistaOrdenDni)},
        {msj(Msj::ColumnaRazonSocial), [](const Fila &f) { return f.nombre; }, Qt::AlignLeft,
         msj(Msj::PistaOrdenNombre)},
        {msj(Msj::ColumnaMunicipio), [](const Fila &f) { return f.nommun; }},
        {msj(Msj::ColumnaProvincia), [](const Fila &f) { return f.nomprov; }},
        {QString(), [](const Fila &f) { return QString::number(f.num430); }},
        {QString(), [](const Fila &f) { return QString::number(f.num480); }},
    });
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
    if (borra)
        m_cmdAceptar->setText(msj(Msj::BotonEliminar));
    m_cmdAceptar->setToolTip(
        msj(borra ? Msj::PistaEliminarSeleccionado : Msj::PistaAbrirSeleccionado));
}

void FrmDecLista::alCambiarIdioma()
{
    PresentaDatos();
}

void FrmDecLista::Actualizar()
{
    procedimiento(this, [this] { PresentaDatos(); });
}

void FrmDecLista::showEvent(QShowEvent *evento)
{
    PantallaBase::showEvent(evento);
    if (!evento->spontaneous() && !focusWidget())
        m_flxDeclarantes->setFocus(Qt::OtherFocusReason);
}

/// The declarant selected stays so; when it is gone, the one in its place, or the first.
void FrmDecLista::CargarflxDeclarantes()
{
    const qint32 csco = estado().CSCO();
    const int lugar = std::max(0, m_flxDeclarantes->currentIndex().row());
    m_modelo->filas(estado().CargarDeclarantes());
    const int fila = csco == 0 ? -1 : m_modelo->buscar(&Fila::csco, csco);
    seleccionar(fila >= 0 ? fila : std::min(lugar, m_modelo->rowCount() - 1));
}

void FrmDecLista::PresentaDatos()
{
    CargarflxDeclarantes();
    m_flxDeclarantes->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
    m_busqueda->columna(columnaOrden());
    const qint32 numero = estado().NUMDECLASEL();
    m_lblNumDecla->setText(QString::number(numero) + u' ' + msj(Msj::DeclarantesSeleccionados));
    m_lblVacio->setVisible(numero == 0);
}

void FrmDecLista::ordenar(int columna)
{
    if (columna == DNI || columna == NOMBRE) {
        estado().ORDEN(columna == DNI ? cDecLista::PorDni : cDecLista::PorNombre);
        PresentaDatos();
    }
    // the header has moved its marker on its own account, to whatever column was clicked
    m_flxDeclarantes->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
}

void FrmDecLista::seleccionar(int fila)
{
    m_flxDeclarantes->selectRow(fila);
    m_flxDeclarantes->scrollTo(m_modelo->index(fila, DNI), QAbstractItemView::PositionAtCenter);
    alSeleccionar();
}

void FrmDecLista::alSeleccionar()
{
    const auto *fila = filaActual();
    estado().CSCO(fila ? fila->csco : 0);
    m_cmdAceptar->setEnabled(fila);
}

const DeclaranteListado *FrmDecLista::filaActual() const
{
    const auto filas = m_flxDeclarantes->selectionModel()->selectedRows();
    return filas.isEmpty() ? nullptr : &m_modelo->fila(filas.first().row());
}

void FrmDecLista::aceptar()
{
    const auto *fila = filaActual();
    if (!fila)
        return;
    if (eliminando()) {
        eliminar(Fila(*fila));
        return;
    }
    auto &resumen = unico::la<cDecResumen>();
    resumen.ENTRADA(Entrada::Abrir);
    resumen.TomarDeclarante(fila->csco, fila->dni, fila->nombre);
    cerrarA(Pantalla::Resumen);
}

void FrmDecLista::eliminar(const Fila &fila)
{
    const QString titulo = msj(Msj::TituloBorradoDeclarante);
    if (fila.num430 != 0 || fila.num480 != 0) {
        mensajes::aviso(this, titulo, msj(Msj::AvisoTieneDeclaraciones));
        return;
    }
    if (!mensajes::pregunta(this, titulo,
                            msj(Msj::PreguntaBorrarDeclarante, fila.dni, fila.nombre)))
        return;
    auto &datos = unico::la<cDecDatos>();
    datos.CSCO(fila.csco);
    datos.BorrarDeclarante();
    PresentaDatos();
    unico::la<CEntrada>().InicializarContadores();
    Q_EMIT datosCambiados();
}

/// Escape leaves the list, once the search box is empty.
void FrmDecLista::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape)
        m_cmdCancelar->click();
    else
        PantallaBase::keyPressEvent(evento);
}
