#include "exchange/FrmExportar.h"

#include "core/Busqueda.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"
#include "widgets/cUtilidadesGrid.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QTableView>

using namespace Qt::StringLiterals;

using Fila = DeclaranteExportable;
using enum cExportar::Tabla;

namespace {

enum Columna { CSCO, DNI, NOMBRE };

constexpr cExportar::Tabla Tablas[] = {Contri, ContriExp};

cExportar &estado()
{
    return unico::la<cExportar>();
}

/// The orders of the service are numbered as the columns that they sort.
int columnaOrden()
{
    return estado().ORDEN() == cExportar::PorNombre ? NOMBRE : DNI;
}

} // namespace

FrmExportar::FrmExportar(QWidget *padre)
    : PantallaProceso(u"FrmExportar"_s, padre)
    , m_lblTitulo(nuevaEtiqueta(u"lblTitulo"_s, contenido()))
    , m_lblayuda(nuevaEtiqueta(u"lblayuda"_s, contenido()))
    , m_listas{nuevaLista(u"flxContri"_s, u"lblResultado1"_s),
               nuevaLista(u"flxContriExp"_s, u"lblresultado2"_s)}
    , m_txtFichero(new QLineEdit(contenido()))
    , m_cmdFichero(new QPushButton(contenido()))
{
    m_txtFichero->setObjectName(u"txtFichero"_s);
    m_lblFichero = nuevaEtiqueta(u"lblFichero"_s, contenido(), m_txtFichero);
    m_cmdFichero->setObjectName(u"cmdFichero"_s);
    m_txtFichero->setText(
        QDir::toNativeSeparators(QDir(ficheros::propuesta()).filePath(u"Contri.txt"_s)));
    disponer();
    Anadir_captions();
    conectar();
    estado().TablaContriExpCLEAR();
    procedimiento(this, [this] { PresentaDatos(); });
}

FrmExportar::Lista FrmExportar::nuevaLista(const QString &nombre, const QString &resultado)
{
    auto *grid = new QTableView(contenido());
    auto *modelo = new Modelo(grid);
    grid->setObjectName(nombre);
    grid->setModel(modelo);
    prepararTablaDeVarias(grid);
    ponerAcciones(grid, {});
    auto filtrar = [this, grid, modelo](const QString &texto) {
        const QString plegado = busqueda::plegar(texto);
        modelo->filtrar([plegado](const Fila &fila) {
            return busqueda::contiene(fila.nombre, plegado)
                || busqueda::contiene(fila.dni, plegado);
        });
        grid->selectRow(0);
        presentarVacias();
        return modelo->rowCount() > 0;
    };
    return {grid, modelo, new cUtilidadesGrid(grid, filtrar), nuevaEtiqueta(resultado, contenido()),
            nuevoVacio(grid)};
}

QLayout *FrmExportar::columnaLista(const Lista &lista) const
{
    auto *columna = new QVBoxLayout;
    columna->addWidget(lista.grid, 1);
    columna->addWidget(lista.resultado);
    return columna;
}

QLayout *FrmExportar::columnaFlechas()
{
    static constexpr struct
    {
        cExportar::Tabla origen;
        bool todos;
        QStringView nombre;
        QStringView texto;
    } flechas[] = {{Contri, false, u"cmdAnadir", u">"},
                   {Contri, true, u"cmdAnadirTodos", u">>"},
                   {ContriExp, false, u"cmdRetirar", u"<"},
                   {ContriExp, true, u"cmdRetirarTodos", u"<<"}};
    auto *columna = new QVBoxLayout;
    columna->addStretch(1);
    for (const auto &[origen, todos, nombre, texto] : flechas) {
        auto *flecha = new QPushButton(texto.toString(), contenido());
        flecha->setObjectName(nombre.toString());
        flecha->setMaximumWidth(8 * fontMetrics().averageCharWidth());
        m_flechas[origen][todos] = flecha;
        alPulsar(flecha, [this, origen = origen, todos = todos] { mover(origen, todos); });
        columna->addWidget(flecha);
    }
    columna->addStretch(1);
    return columna;
}

QLayout *FrmExportar::filaFichero()
{
    auto *fila = new QHBoxLayout;
    fila->addWidget(m_lblFichero);
    fila->addWidget(m_txtFichero, 1);
    fila->addWidget(m_cmdFichero);
    return fila;
}

void FrmExportar::disponer()
{
    agrandarLetra(m_lblTitulo, 1.2);
    m_lblayuda->setWordWrap(true);
    auto *listas = new QHBoxLayout;
    listas->addLayout(columnaLista(m_listas[Contri]), 1);
    listas->addLayout(columnaFlechas());
    listas->addLayout(columnaLista(m_listas[ContriExp]), 1);
    auto *botones = new BarraBotones(u"fraBotones"_s, contenido());
    m_cmdExportar = botones->anadir(u"cmdExportar"_s, u"picExportar"_s, Icono::Exportar);
    m_cmdCancelar = botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar);

    auto *todo = new QVBoxLayout(contenido());
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(8);
    todo->addWidget(m_lblTitulo);
    todo->addWidget(m_lblayuda);
    todo->addLayout(listas, 1);
    todo->addLayout(filaFichero());
    todo->addWidget(botones);
    enlazarTab({m_listas[Contri].grid, m_flechas[Contri][false], m_flechas[Contri][true],
                m_flechas[ContriExp][false], m_flechas[ContriExp][true], m_listas[ContriExp].grid,
                m_txtFichero, m_cmdFichero, m_cmdExportar, m_cmdCancelar});
}

void FrmExportar::conectar()
{
    for (const auto cual : Tablas) {
        const Lista &lista = m_listas[cual];
        auto *cabecera = lista.grid->horizontalHeader();
        const int letra = fontMetrics().averageCharWidth();
        lista.grid->setColumnWidth(CSCO, 9 * letra);
        lista.grid->setColumnWidth(DNI, 15 * letra);
        cabecera->setSectionsClickable(cual == Contri);
        cabecera->setSortIndicatorShown(cual == Contri);
        connect(lista.grid, &QTableView::activated, this,
                [this, cual] { procedimiento(this, [&] { mover(cual, false); }); });
        connect(lista.grid->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, cual] { alSeleccionar(cual); });
    }
    m_listas[ContriExp].busqueda->columna(DNI);
    connect(m_listas[Contri].grid->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int columna) { procedimiento(this, [&] { ordenar(columna); }); });
    connect(m_txtFichero, &QLineEdit::textChanged, this, [this] { alSeleccionar(ContriExp); });
    alPulsar(m_cmdFichero, [this] { elegirFichero(); });
    alPulsar(m_cmdExportar, [this] { exportar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
}

QSize FrmExportar::sizeHint() const
{
    return {130 * fontMetrics().averageCharWidth(), 34 * fontMetrics().height()};
}

void FrmExportar::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloExportar));
    PantallaProceso::Anadir_captions();
    m_lblTitulo->setText(estado().lblTitulo());
    m_lblayuda->setText(estado().lblayuda());
    ponerColumnas();
    m_listas[Contri].grid->setAccessibleName(msj(Msj::AccesibleListaDisponibles));
    m_listas[ContriExp].grid->setAccessibleName(msj(Msj::AccesibleListaElegidos));
    static constexpr Msj pistas[2][2] = {{Msj::PistaExportarUno, Msj::PistaExportarTodos},
                                         {Msj::PistaRetirarUno, Msj::PistaRetirarTodos}};
    for (const auto cual : Tablas)
        for (const int todos : {0, 1}) {
            m_flechas[cual][todos]->setToolTip(msj(pistas[cual][todos]));
            m_flechas[cual][todos]->setAccessibleName(msj(pistas[cual][todos]));
        }
    m_lblFichero->setText(msj(Msj::FicheroAExportar));
    m_cmdFichero->setText(u"..."_s);
    m_cmdFichero->setToolTip(msj(Msj::PistaElegirDestino));
    m_cmdFichero->setAccessibleName(msj(Msj::PistaElegirDestino));
    m_cmdExportar->setText(msj(Msj::BotonExportar));
    m_cmdExportar->setToolTip(msj(Msj::PistaExportarSeleccionados));
    m_cmdCancelar->setText(msj(Msj::BotonCerrar));
    m_cmdCancelar->setToolTip(msj(Msj::PistaVolverMenu));
}

void FrmExportar::ponerColumnas()
{
    for (const auto cual : Tablas) {
        const bool ordena = cual == Contri;
        m_listas[cual].modelo->columnas({
            {msj(Msj::ColumnaNumeroContribuyente),
             [](const Fila &f) { return QString::number(f.csco); }, Qt::AlignRight},
            {msj(Msj::ColumnaDni), [](const Fila &f) { return f.dni; }, Qt::AlignLeft,
             ordena ? msj(Msj::PistaOrdenDni) : QString()},
            {msj(Msj::ColumnaRazonSocial), [](const Fila &f) { return f.nombre; }, Qt::AlignLeft,
             ordena ? msj(Msj::PistaOrdenNombre) : QString()},
        });
    }
}

void FrmExportar::alCambiarIdioma()
{
    presentarListas();
}

void FrmExportar::Actualizar()
{
    procedimiento(this, [this] { PresentaDatos(); });
}

void FrmExportar::showEvent(QShowEvent *evento)
{
    PantallaProceso::showEvent(evento);
    if (entraSinFoco(*evento))
        m_listas[Contri].grid->setFocus(Qt::OtherFocusReason);
}

void FrmExportar::PresentaDatos()
{
    estado().CargarDeclarantes();
    m_listas[Contri].grid->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
    m_listas[Contri].busqueda->columna(columnaOrden());
    presentarListas();
}

/// Both lists, each at the row where it was, and both counts.
void FrmExportar::presentarListas()
{
    for (const auto cual : Tablas) {
        const Lista &lista = m_listas[cual];
        const int fila = lista.grid->currentIndex().row();
        lista.modelo->filas(estado().tabla(cual).filas());
        lista.grid->selectRow(qMin(qMax(0, fila), lista.modelo->rowCount() - 1));
        alSeleccionar(cual);
    }
    presentarVacias();
    m_listas[Contri].resultado->setText(estado().lblResultado1());
    m_listas[ContriExp].resultado->setText(estado().lblresultado2());
}

/// Why there is nothing in a list.
void FrmExportar::presentarVacias()
{
    static constexpr Msj motivos[] = {Msj::ExportarTodosElegidos, Msj::ExportarNingunoElegido};
    for (const auto cual : Tablas) {
        const Lista &lista = m_listas[cual];
        const bool buscando
            = lista.busqueda->hayAlgunaCondicion() && !lista.modelo->todas().isEmpty();
        const bool nadie = estado().NUMCONTRISEL() + estado().NUMCONTRIEXP() == 0;
        lista.vacio->setVisible(lista.modelo->rowCount() == 0);
        lista.vacio->setText(buscando ? msj(Msj::NingunDeclaranteContiene, lista.busqueda->texto())
                                      : msj(nadie ? Msj::SinDeclarantes : motivos[cual]));
    }
}

void FrmExportar::ordenar(int columna)
{
    if (columna == DNI || columna == NOMBRE) {
        estado().ORDEN(columna == DNI ? cExportar::PorDni : cExportar::PorNombre);
        PresentaDatos();
    }
    // the header has moved its marker on its own account, to whatever column was clicked
    m_listas[Contri].grid->horizontalHeader()->setSortIndicator(columnaOrden(), Qt::AscendingOrder);
}

void FrmExportar::alSeleccionar(cExportar::Tabla cual)
{
    const Lista &lista = m_listas[cual];
    const auto indice = lista.grid->currentIndex();
    const qint32 csco = indice.isValid() ? lista.modelo->fila(indice.row()).csco : 0;
    if (cual == Contri)
        estado().CSCO(csco);
    else
        estado().CSCOEXP(csco);
    m_flechas[cual][false]->setEnabled(lista.grid->selectionModel()->hasSelection());
    m_flechas[cual][true]->setEnabled(lista.modelo->rowCount() > 0);
    m_cmdExportar->setEnabled(estado().NUMCONTRIEXP() > 0
                              && !m_txtFichero->text().trimmed().isEmpty());
}

void FrmExportar::mover(cExportar::Tabla origen, bool todos)
{
    const Lista &lista = m_listas[origen];
    QList<int> posiciones;
    if (todos) {
        for (int fila = 0; fila < lista.modelo->rowCount(); ++fila)
            posiciones += lista.modelo->lugar(fila) + 1;
    } else {
        for (const QModelIndex &indice : lista.grid->selectionModel()->selectedRows())
            posiciones += lista.modelo->lugar(indice.row()) + 1;
        std::ranges::sort(posiciones);
    }
    estado().MoverElementos(origen, posiciones);
    presentarListas();
}

void FrmExportar::elegirFichero()
{
    const QString ruta = ficheros::guardar(this, msj(Msj::TituloExportarA),
                                           QDir::fromNativeSeparators(m_txtFichero->text()),
                                           u"*.txt;;*.*"_s, false);
    if (!ruta.isEmpty())
        m_txtFichero->setText(QDir::toNativeSeparators(ruta));
}

void FrmExportar::exportar()
{
    const QString ruta = QDir::fromNativeSeparators(m_txtFichero->text().trimmed());
    estado().FICHEROAEXPORTAR(ruta);
    if (const QString motivo = motivoNoExportable(ruta); !motivo.isEmpty()) {
        aviso(motivo);
        return;
    }
    // either answer writes the file: the box has no button that stops it
    if (QFileInfo::exists(ruta))
        mensajes::pregunta(this, msj(Msj::TituloConfirmacion), msj(Msj::PreguntaSobreescribir));
    Exportado exportado;
    const bool bien = trabajar(estado().NUMCONTRIEXP(), [&] {
        exportado = estado().EscribirFichero([this](qint64 linea) { return paso(linea); });
    });
    if (bien)
        terminar(exportado);
}

void FrmExportar::terminar(const Exportado &exportado)
{
    const QString ruta = QDir::toNativeSeparators(estado().FICHEROAEXPORTAR());
    const QString lineas = QString::number(exportado.lineas);
    if (!exportado.motivo.isEmpty())
        aviso(msj(Msj::ErrorEscribirFichero, ruta, exportado.motivo) + u'\n'
              + msj(Msj::Exportados, lineas));
    else if (exportado.detenida)
        mensajes::informacion(this, windowTitle(), msj(Msj::ExportacionDetenida, lineas));
    else
        decir(msj(Msj::Exportados, lineas), true);
}
