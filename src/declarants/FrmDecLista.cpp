#include "declarants/FrmDecLista.h"

#include "core/Busqueda.h"
#include "core/CEntrada.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "printing/Listado.h"
#include "printing/SalidaImpresora.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QDate>
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
constexpr QColor Rojo(176, 32, 32);
} // namespace

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
    , m_lblEliminar(nuevaEtiqueta(u"lblEliminar"_s, this))
    , m_lblOrdenar(nuevaEtiqueta(u"lblOrdenar"_s, this))
    , m_flxDeclarantes(new QTableView(this))
    , m_modelo(new ModeloFilas<Fila>(this))
    , m_busqueda(new cUtilidadesGrid(m_flxDeclarantes,
                                     [this](const QString &texto) { return filtrar(texto); }))
    , m_lblVacio(nuevoVacio(m_flxDeclarantes))
    , m_lblBusqueda(nuevaEtiqueta(u"lblBusqueda"_s, this))
    , m_lblNumDecla(nuevaEtiqueta(u"lblNumDecla"_s, this))
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cmdListado(m_botones->anadir(u"cmdListado"_s, {}, Icono::Imprimir))
    , m_cmdAceptar(m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s,
                                     eliminando() ? Icono::Eliminar : Icono::Aceptar))
    , m_cmdCancelar(m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar))
{
    for (auto *etiqueta : {m_lblOrdenar, m_lblBusqueda})
        etiqueta->setWordWrap(true);
    estado().ORDEN(cDecLista::PorNombre);
    Anadir_captions();
    prepararGrid();
    crearOrdenes();
    ponerAspecto();
    disponer();
    alPulsar(m_cmdListado, [this] { imprimirListado(); });
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
    PresentaDatos();
}

void FrmDecLista::prepararGrid()
{
    m_flxDeclarantes->setObjectName(u"flxDeclarantes"_s);
    m_flxDeclarantes->setModel(m_modelo);
    prepararTablaDeVarias(m_flxDeclarantes);
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

/// A list from which declarants are deleted does not look like one from which they are opened.
void FrmDecLista::ponerAspecto()
{
    const bool borra = eliminando();
    ponerAcciones(m_flxDeclarantes,
                  {{m_cmdAceptar, borra ? Qt::Key_Delete : QKeySequence()}, {m_cmdListado, {}}});
    m_lblEliminar->setVisible(borra);
    m_cmdListado->setVisible(!borra);
    if (!borra)
        return;
    QPalette banda = m_lblEliminar->palette();
    banda.setColor(QPalette::Window, Rojo);
    banda.setColor(QPalette::WindowText, Qt::white);
    m_lblEliminar->setPalette(banda);
    m_lblEliminar->setAutoFillBackground(true);
    m_lblEliminar->setMargin(6);
    QPalette filas = m_flxDeclarantes->palette();
    filas.setColor(QPalette::Highlight, Rojo);
    filas.setColor(QPalette::HighlightedText, Qt::white);
    m_flxDeclarantes->setPalette(filas);
}

void FrmDecLista::disponer()
{
    agrandarLetra(m_lblBusqueda, 0.9);

    auto *pie = new QHBoxLayout;
    pie->addWidget(m_lblNumDecla);
    pie->addWidget(m_botones, 1);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(8);
    todo->addWidget(m_lblEliminar);
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
    m_lblEliminar->setText(msj(Msj::BandaEliminar));
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
    m_cmdListado->setText(msj(Msj::MenuImprimirListado));
    m_cmdListado->setToolTip(msj(Msj::PistaImprimirListado));
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
    if (borra)
        m_cmdAceptar->setText(msj(Msj::BotonEliminar));
    m_cmdAceptar->setToolTip(
        msj(borra ? Msj::PistaEliminarSeleccionado : Msj::PistaAbrirSeleccionado));
}

/// The names of the provinces change with the language.
void FrmDecLista::alCambiarIdioma()
{
    const qint32 csco = estado().CSCO();
    PresentaDatos();
    seleccionarDeclarante(csco);
}

void FrmDecLista::Actualizar()
{
    procedimiento(this, [this] { PresentaDatos(); });
}

/// Only its row: it may be new, gone, or in another place now.
void FrmDecLista::ActualizarDeclarante(qint32 csco)
{
    const qint32 elegido = estado().CSCO();
    auto ahora = cDecLista::CargarDeclarante(csco);
    m_modelo->cambiar([&](QList<Fila> &todas) {
        todas.removeIf([csco](const Fila &fila) { return fila.csco == csco; });
        if (ahora)
            estado().Colocar(todas, std::move(*ahora));
        estado().NUMDECLASEL(static_cast<qint32>(todas.size()));
    });
    PresentaNumero();
    seleccionarDeclarante(elegido);
}

void FrmDecLista::showEvent(QShowEvent *evento)
{
    PantallaBase::showEvent(evento);
    if (entraSinFoco(*evento))
        m_flxDeclarantes->setFocus(Qt::OtherFocusReason);
}

void FrmDecLista::CargarflxDeclarantes()
{
    m_modelo->filas({}); // never two copies of a long list
    m_modelo->filas(estado().CargarDeclarantes());
    seleccionar(0);
}

void FrmDecLista::PresentaDatos()
{
    CargarflxDeclarantes();
    m_flxDeclarantes->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
    m_busqueda->columna(columnaOrden());
    PresentaNumero();
}

void FrmDecLista::PresentaNumero()
{
    const int todos = estado().NUMDECLASEL();
    const int visibles = m_modelo->rowCount();
    const QString numero = m_busqueda->hayAlgunaCondicion() ? u"%1/%2"_s.arg(visibles).arg(todos)
                                                            : QString::number(todos);
    m_lblNumDecla->setText(numero + u' ' + msj(Msj::DeclarantesSeleccionados));
    m_lblVacio->setVisible(visibles == 0);
    m_lblVacio->setText(todos == 0 ? msj(Msj::SinDeclarantes)
                                   : msj(Msj::NingunDeclaranteContiene, m_busqueda->texto()));
}

void FrmDecLista::ordenar(int columna)
{
    if (columna == DNI || columna == NOMBRE) {
        estado().ORDEN(columna == DNI ? cDecLista::PorDni : cDecLista::PorNombre);
        m_modelo->cambiar([](QList<Fila> &todas) { estado().Ordenar(todas); });
        m_busqueda->columna(columna);
        seleccionar(0);
    }
    // the header has moved its marker on its own account, to whatever column was clicked
    m_flxDeclarantes->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
}

bool FrmDecLista::filtrar(const QString &texto)
{
    const qint32 elegido = estado().CSCO();
    const QString plegado = busqueda::plegar(texto);
    m_modelo->filtrar([plegado](const Fila &fila) {
        return busqueda::contiene(fila.nombre, plegado) || busqueda::contiene(fila.dni, plegado);
    });
    PresentaNumero();
    seleccionarDeclarante(elegido);
    return m_modelo->rowCount() > 0;
}

/// The first row when that declarant is not shown.
void FrmDecLista::seleccionarDeclarante(qint32 csco)
{
    seleccionar(std::max(0, m_modelo->buscar(&Fila::csco, csco)));
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
    const int fila = filaUnica(*m_flxDeclarantes);
    return fila < 0 ? nullptr : &m_modelo->fila(fila);
}

/// The rows that are shown, in their order.
void FrmDecLista::imprimirListado()
{
    const QDate hoy = QDate::currentDate();
    impreso::Listado listado{
        msj(Msj::TituloListado),
        unico::la<cFecha>().LongToString(hoy.year() * 10000 + hoy.month() * 100 + hoy.day()),
        {{msj(Msj::ColumnaDni), 24},
         {msj(Msj::ColumnaRazonSocial), 72},
         {msj(Msj::ColumnaMunicipio), 40},
         {msj(Msj::ColumnaProvincia), 30},
         {Modelo430, 12, true},
         {Modelo480, 12, true}},
        {}};
    for (int i = 0; i < m_modelo->rowCount(); ++i) {
        const Fila &f = m_modelo->fila(i);
        const auto numero = [&f](qint32 n) { return f.danado ? QString() : QString::number(n); };
        listado.filas.append(
            {f.dni, f.nombre, f.nommun, f.nomprov, numero(f.num430), numero(f.num480)});
    }
    SalidaImpresora().vistaPrevia(this, listado);
}

void FrmDecLista::aceptar()
{
    const auto *fila = filaActual();
    if (!fila)
        return;
    if (eliminando()) {
        eliminar(fila->csco);
        return;
    }
    auto &resumen = unico::la<cDecResumen>();
    resumen.ENTRADA(Entrada::Abrir);
    resumen.TomarDeclarante(fila->csco, fila->dni, fila->nombre);
    cerrarA(Pantalla::Resumen);
}

/// What stands in the list may be old: the declarant is looked up again before the question.
void FrmDecLista::eliminar(qint32 csco)
{
    const Fila listado = *filaActual();
    ActualizarDeclarante(csco);
    const auto *fila = filaActual();
    if (!fila || fila->csco != csco)
        return yaNoEsta(listado);
    const QString titulo = msj(Msj::TituloBorradoDeclarante);
    if (fila->num430 != 0 || fila->num480 != 0) {
        mensajes::aviso(this, titulo, msj(Msj::AvisoTieneDeclaraciones));
        return;
    }
    const QString dni = fila->dni, nombre = fila->nombre;
    if (!mensajes::pregunta(this, titulo, msj(Msj::PreguntaBorrarDeclarante, dni, nombre)))
        return;
    auto &datos = unico::la<cDecDatos>();
    datos.CSCO(csco);
    datos.BorrarDeclarante();
    decir(msj(Msj::DeclaranteEliminado, dni, nombre));
    Q_EMIT datosCambiados(csco);
    unico::la<CEntrada>().InicializarContadores();
    PresentaDatos();
}

void FrmDecLista::yaNoEsta(const Fila &fila)
{
    mensajes::aviso(this, msj(Msj::TituloBorradoDeclarante),
                    msj(Msj::EliminadoEnOtraCopia, fila.dni + u" - "_s + fila.nombre));
    Q_EMIT datosCambiados(fila.csco);
}

/// Escape leaves the list, once the search box is empty.
void FrmDecLista::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && m_busqueda->hayAlgunaCondicion())
        m_busqueda->OcultarTxtBusqueda();
    else
        PantallaBase::keyPressEvent(evento);
}
