#include "widgets/cUtilidadesGrid.h"

#include "core/Textos.h"
#include "widgets/SalidaLista.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The box that shows what is being searched for in a list. It never has the focus: the list keeps
/// it.
class CajaBusqueda : public QLineEdit
{
public:
    explicit CajaBusqueda(QWidget *padre);

    /// Lays the box over `lugar` of its parent.
    void mostrarEn(const QRect &lugar);
    void vaciar();
    /// Colours the text by whether anything was found.
    void hallado(bool algo);
};

static constexpr int AnchoMinimo = 160;

CajaBusqueda::CajaBusqueda(QWidget *padre)
    : QLineEdit(padre)
{
    setObjectName(u"txtBusqueda"_s);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void CajaBusqueda::mostrarEn(const QRect &lugar)
{
    setGeometry(lugar.x(), lugar.y(), std::max(lugar.width(), AnchoMinimo), lugar.height());
    setAccessibleName(msj(Msj::AccesibleCuadroBusqueda));
    show();
    raise();
}

void CajaBusqueda::vaciar()
{
    clear();
    hide();
}

void CajaBusqueda::hallado(bool algo)
{
    QPalette colores;
    if (!algo)
        colores.setColor(QPalette::Text, Qt::red);
    setPalette(colores);
}

cUtilidadesGrid::cUtilidadesGrid(QTableView *Flex, std::function<bool(const QString &)> filtrar)
    : QObject(Flex)
    , m_flex(Flex)
    , m_txtBusqueda(new CajaBusqueda(Flex))
    , m_filtrar(std::move(filtrar))
{
    m_flex->installEventFilter(this);
}

void cUtilidadesGrid::columna(int columna)
{
    m_columna = columna;
    if (hayAlgunaCondicion())
        PosicionarTxtBusqueda();
}

void cUtilidadesGrid::PosicionarTxtBusqueda()
{
    const auto *cabecera = m_flex->horizontalHeader();
    m_txtBusqueda->mostrarEn({cabecera->x() + cabecera->sectionViewportPosition(m_columna),
                              cabecera->y(), cabecera->sectionSize(m_columna), cabecera->height()});
}

void cUtilidadesGrid::OcultarTxtBusqueda()
{
    const bool habia = hayAlgunaCondicion();
    m_txtBusqueda->vaciar();
    if (habia)
        m_filtrar({});
}

bool cUtilidadesGrid::hayAlgunaCondicion() const
{
    return !texto().isEmpty();
}

QString cUtilidadesGrid::texto() const
{
    return m_txtBusqueda->text();
}

void cUtilidadesGrid::SeleccionarGrid(const QString &texto)
{
    m_txtBusqueda->setText(texto);
    PosicionarTxtBusqueda();
    m_txtBusqueda->hallado(m_filtrar(texto));
}

bool cUtilidadesGrid::tecla(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && hayAlgunaCondicion()) {
        OcultarTxtBusqueda();
        return true;
    }
    QString texto = m_txtBusqueda->text();
    if (evento->key() == Qt::Key_Backspace && hayAlgunaCondicion())
        texto.chop(1);
    else if (!evento->text().isEmpty() && evento->text().front().isPrint()
             && (hayAlgunaCondicion() || !evento->text().front().isSpace())
             && !(evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        texto += evento->text();
    else
        return false;
    if (texto.isEmpty())
        OcultarTxtBusqueda();
    else
        SeleccionarGrid(texto);
    return true;
}

bool cUtilidadesGrid::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress)
        return tecla(static_cast<QKeyEvent *>(evento));
    return QObject::eventFilter(objeto, evento);
}

QList<int> filasElegidas(const QTableView &grid)
{
    QList<int> filas;
    for (const auto &tramo : grid.selectionModel()->selection())
        for (int fila = tramo.top(); fila <= tramo.bottom(); ++fila)
            filas.append(fila);
    std::ranges::sort(filas);
    filas.erase(std::unique(filas.begin(), filas.end()), filas.end());
    return filas;
}

int filaUnica(const QTableView &grid)
{
    const auto filas = filasElegidas(grid);
    return filas.size() == 1 ? filas.first() : -1;
}

/// The menu names what the buttons are called and allow at this moment.
static void abrirMenu(QTableView *grid, const QList<AccionFila> &acciones, const QPoint &lugar)
{
    const auto fila = grid->indexAt(lugar);
    if (!fila.isValid())
        return;
    if (!grid->selectionModel()->isRowSelected(fila.row()))
        grid->selectRow(fila.row());
    QMenu menu(grid);
    menu.setObjectName(u"mnuFila"_s);
    for (const auto &accion : acciones) {
        auto *entrada = menu.addAction(accion.boton->icon(), accion.boton->text().trimmed());
        entrada->setObjectName(accion.boton->objectName());
        entrada->setShortcut(accion.tecla);
        entrada->setEnabled(accion.boton->isEnabled());
        QObject::connect(entrada, &QAction::triggered, accion.boton, &QPushButton::click);
    }
    anadirSalidas(menu, grid);
    menu.exec(grid->viewport()->mapToGlobal(lugar));
}

void ponerAcciones(QTableView *grid, const QList<AccionFila> &acciones)
{
    for (const auto &accion : acciones) {
        if (accion.tecla.isEmpty())
            continue;
        auto *atajo = new QShortcut(accion.tecla, grid);
        atajo->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(atajo, &QShortcut::activated, accion.boton, &QPushButton::click);
    }
    permitirSalida(grid);
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(grid, &QTableView::customContextMenuRequested, grid,
                     [=](const QPoint &lugar) { abrirMenu(grid, acciones, lugar); });
}
