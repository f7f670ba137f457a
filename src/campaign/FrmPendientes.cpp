#include "campaign/FrmPendientes.h"

#include "core/Busqueda.h"
#include "core/GuardarFichero.h"
#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"
#include "printing/cImprimirVarias.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/ListaDesplegable.h"
#include "widgets/ModeloFilas.h"
#include "widgets/cUtilidadesGrid.h"

#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <numeric>

using namespace Qt::StringLiterals;

using Fila = DeclarantePendiente;

namespace {
enum Columna { DNI, NOMBRE, ESTADO, IMPORTE, FALTAN };
enum Mostrar { Todas, Pendientes, Guardadas };
constexpr int PosicionAnual = UltimoMes; ///< in the list of periods, after its months
} // namespace

static cPendientes &estado()
{
    return unico::la<cPendientes>();
}

FrmPendientes::FrmPendientes(QWidget *padre)
    : PantallaBase(u"FrmPendientes"_s, padre)
    , m_txtejer(new CajaTexto(u"txtejer"_s, 4, CajaTexto::Cifras, this))
    , m_cmbperiodo(new ListaDesplegable(u"cmbperiodo"_s, this))
    , m_cmbmostrar(new ListaDesplegable(u"cmbmostrar"_s, this))
    , m_lblejer(nuevaEtiqueta(u"lblejer"_s, this, m_txtejer))
    , m_lblperiodo(nuevaEtiqueta(u"lblperiodo"_s, this, m_cmbperiodo))
    , m_lblmostrar(nuevaEtiqueta(u"lblmostrar"_s, this, m_cmbmostrar))
    , m_flxPendientes(new QTableView(this))
    , m_modelo(new ModeloFilas<Fila>(this))
    , m_busqueda(new cUtilidadesGrid(m_flxPendientes,
                                     [this](const QString &) {
                                         filtrar();
                                         return m_modelo->rowCount() > 0;
                                     }))
    , m_lblVacio(nuevoVacio(m_flxPendientes))
    , m_lblBusqueda(nuevaEtiqueta(u"lblBusqueda"_s, this))
    , m_lblNumDecla(nuevaEtiqueta(u"lblNumDecla"_s, this))
    , m_lblSuma(nuevaEtiqueta(u"lblSuma"_s, this))
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cmdAceptar(m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s, Icono::Abrir))
    , m_cmdPlantilla(m_botones->anadir(u"cmdPlantilla"_s, {}, Icono::Exportar))
    , m_cmdImportar(m_botones->anadir(u"cmdImportar"_s, {}, Icono::Importar))
    , m_cmdImprimir(m_botones->anadir(u"cmdImprimir"_s, {}, Icono::Imprimir))
    , m_cmdCancelar(m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar))
{
    m_lblBusqueda->setWordWrap(true);
    if (estado().CABECERA().ejercicio == 0) {
        const auto ultima = cPendientes::UltimaTerminada(QDate::currentDate());
        estado().CABECERA(ultima.ejercicio, ultima.periodo);
    }
    cargarListas();
    m_cmbmostrar->mostrarEntrada(Todas);
    Anadir_captions();
    prepararGrid();
    disponer();
    conectar();
    cargar();
}

void FrmPendientes::cargarListas()
{
    QStringList periodos;
    for (int mes = 1; mes <= UltimoMes; ++mes)
        periodos += nombreMes(mes);
    m_cmbperiodo->entradas(periodos + QStringList{palabraPeriodicidad(PeriodicidadAnual)});
    const int mostrado = std::max(0, m_cmbmostrar->currentIndex());
    m_cmbmostrar->entradas({msj(Msj::VerTodas), msj(Msj::VerPendientes), msj(Msj::VerGuardadas)});
    m_cmbmostrar->mostrarEntrada(mostrado);
    const auto &c = estado().CABECERA();
    m_txtejer->mostrar(QString::number(c.ejercicio));
    m_cmbperiodo->mostrarEntrada(c.tipologia == Tipologia480 ? PosicionAnual : c.periodo - 1);
}

void FrmPendientes::prepararGrid()
{
    m_flxPendientes->setObjectName(u"flxPendientes"_s);
    m_flxPendientes->setModel(m_modelo);
    prepararTablaDeVarias(m_flxPendientes);
    const int letra = fontMetrics().averageCharWidth();
    m_flxPendientes->setColumnWidth(DNI, 16 * letra);
    m_flxPendientes->setColumnWidth(ESTADO, 24 * letra);
    m_flxPendientes->setColumnWidth(IMPORTE, 22 * letra);
    m_flxPendientes->setColumnWidth(FALTAN, 34 * letra);
    auto *cabecera = m_flxPendientes->horizontalHeader();
    cabecera->setStretchLastSection(false);
    cabecera->setSectionResizeMode(NOMBRE, QHeaderView::Stretch);
    m_busqueda->columna(NOMBRE);
    ponerAcciones(m_flxPendientes, {{m_cmdAceptar, {}}, {m_cmdImprimir, Qt::CTRL | Qt::Key_P}});
}

void FrmPendientes::disponer()
{
    auto *arriba = new QHBoxLayout;
    arriba->setSpacing(8);
    for (const auto &[etiqueta, control] : {std::pair<QLabel *, QWidget *>{m_lblejer, m_txtejer},
                                            {m_lblperiodo, m_cmbperiodo},
                                            {m_lblmostrar, m_cmbmostrar}}) {
        arriba->addWidget(etiqueta);
        arriba->addWidget(control);
        arriba->addSpacing(12);
    }
    arriba->addStretch(1);
    for (auto *lista : {m_cmbperiodo, m_cmbmostrar})
        lista->setFixedWidth(fontMetrics().horizontalAdvance(u"AURKEZTEKOAK"_s) + 52);
    agrandarLetra(m_lblBusqueda, 0.9);

    auto *cuentas = new QHBoxLayout;
    cuentas->addWidget(m_lblNumDecla, 1);
    cuentas->addWidget(m_lblSuma);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(8);
    todo->addLayout(arriba);
    todo->addWidget(m_flxPendientes, 1);
    todo->addLayout(cuentas);
    todo->addWidget(m_lblBusqueda);
    todo->addWidget(m_botones);
}

void FrmPendientes::conectar()
{
    m_txtejer->alConfirmar = [this] { return tomarEjercicio(); };
    m_cmbperiodo->alElegir = [this](int posicion) { tomarPeriodo(posicion); };
    m_cmbperiodo->alRechazar = [this] { aviso(msj(Msj::ErrorPeriodoLista)); };
    m_cmbmostrar->alElegir = [this](int posicion) {
        m_cmbmostrar->mostrarEntrada(std::max<int>(Todas, posicion));
        filtrar();
    };
    connect(m_flxPendientes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmPendientes::alSeleccionar);
    connect(m_flxPendientes, &QTableView::activated, m_cmdAceptar, &QPushButton::click);
    alPulsar(m_cmdAceptar, [this] { abrir(); });
    alPulsar(m_cmdPlantilla, [this] { guardarPlantilla(); });
    alPulsar(m_cmdImportar, [this] { Q_EMIT mostrar(Pantalla::ImportarDeclaraciones); });
    alPulsar(m_cmdImprimir, [this] { imprimir(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
}

QSize FrmPendientes::sizeHint() const
{
    return {130 * fontMetrics().averageCharWidth(), 32 * fontMetrics().height()};
}

void FrmPendientes::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloPendientes));
    m_lblejer->setText(msj(Msj::Ejercicio));
    m_lblperiodo->setText(msj(Msj::Periodo));
    m_lblmostrar->setText(msj(Msj::EtiquetaMostrar));
    m_lblBusqueda->setText(msj(Msj::PistaBusquedaPendientes));
    m_txtejer->setAccessibleName(msj(Msj::Ejercicio));
    m_cmbperiodo->setAccessibleName(msj(Msj::Periodo));
    m_cmbmostrar->setAccessibleName(msj(Msj::EtiquetaMostrar));
    m_flxPendientes->setAccessibleName(msj(Msj::AccesibleListaPendientes));
    rotular(m_cmdAceptar, Msj::BotonDatos, Msj::PistaAbrirResumen);
    rotular(m_cmdPlantilla, Msj::BotonPlantilla, Msj::PistaPlantilla);
    rotular(m_cmdImportar, Msj::BotonImportarHoja, Msj::PistaImportarHoja);
    rotular(m_cmdImprimir, Msj::BotonImprimirVarias, Msj::PistaImprimirVarias);
    rotular(m_cmdCancelar, Msj::BotonCerrar, Msj::PistaVolverMenu);
    m_modelo->columnas({
        {msj(Msj::ColumnaDni), [](const Fila &f) { return f.dni; }},
        {msj(Msj::ColumnaRazonSocial), [](const Fila &f) { return f.nombre; }},
        {msj(Msj::ColumnaEstado), [](const Fila &f) { return textoEstado(f.estado()); }},
        {msj(Msj::ColumnaImporte),
         [](const Fila &f) { return f.conImporte() ? textoImporte(f.importe) : QString(); },
         Qt::AlignRight},
        {msj(Msj::ColumnaFaltan), [](const Fila &f) { return textoMeses(f.faltan); }},
    });
}

void FrmPendientes::alCambiarIdioma()
{
    cargarListas();
    PresentaNumeros();
}

void FrmPendientes::showEvent(QShowEvent *evento)
{
    PantallaBase::showEvent(evento);
    if (!evento->spontaneous())
        m_flxPendientes->setFocus(Qt::OtherFocusReason);
}

bool FrmPendientes::tomarEjercicio()
{
    const auto &c = estado().CABECERA();
    return mirar(m_txtejer->text().toShort(), c.tipologia == Tipologia480 ? 0 : c.periodo);
}

void FrmPendientes::tomarPeriodo(int posicion)
{
    if (posicion < 0)
        cargarListas(); // an emptied box goes back to what is shown
    else
        mirar(estado().CABECERA().ejercicio, posicion == PosicionAnual ? 0 : posicion + 1);
}

/// False, with the reason told, when there is no such return; the one shown stays.
bool FrmPendientes::mirar(qint16 ejercicio, int mes)
{
    cPendientes otra;
    otra.CABECERA(ejercicio, mes);
    if (!otra.DentroDeLimites()) {
        aviso(textoCabecera(
            qint16(ejercicio == 0 ? ReglaCabecera::Ejercicio : ReglaCabecera::Fuera)));
        cargarListas();
        return false;
    }
    estado().CABECERA(ejercicio, mes);
    procedimiento(this, [this] { cargar(); });
    return true;
}

void FrmPendientes::Actualizar()
{
    procedimiento(this, [this] { cargar(); });
}

void FrmPendientes::ActualizarDeclarante(qint32 csco)
{
    const qint32 elegido = estado().CSCO();
    auto ahora = estado().CargarDeclarante(csco);
    m_modelo->cambiar([&](QList<Fila> &todas) {
        todas.removeIf([csco](const Fila &fila) { return fila.csco == csco; });
        if (ahora)
            cPendientes::Colocar(todas, std::move(*ahora));
    });
    PresentaNumeros();
    seleccionarDeclarante(elegido);
}

void FrmPendientes::cargar()
{
    const PunteroOcupado puntero;
    const qint32 elegido = estado().CSCO();
    m_modelo->filas({}); // never two copies of a long list
    m_modelo->filas(estado().Cargar());
    PresentaNumeros();
    seleccionarDeclarante(elegido);
}

void FrmPendientes::filtrar()
{
    const qint32 elegido = estado().CSCO();
    const QString plegado = busqueda::plegar(m_busqueda->texto());
    const int mostrar = m_cmbmostrar->currentIndex();
    m_modelo->filtrar([=](const Fila &fila) {
        const bool guardada = fila.csde != 0;
        return (mostrar == Todas || guardada == (mostrar == Guardadas))
            && (busqueda::contiene(fila.nombre, plegado) || busqueda::contiene(fila.dni, plegado));
    });
    PresentaNumeros();
    seleccionarDeclarante(elegido);
}

void FrmPendientes::PresentaNumeros()
{
    const auto &todas = m_modelo->todas();
    const auto guardadas
        = std::ranges::count_if(todas, [](const Fila &fila) { return fila.csde != 0; });
    double suma = 0;
    for (int i = 0; i < m_modelo->rowCount(); ++i)
        suma += m_modelo->fila(i).importe;
    m_lblNumDecla->setText(msj(Msj::CuentaPendientes, QString::number(todas.size()),
                               QString::number(guardadas),
                               QString::number(todas.size() - guardadas)));
    m_lblSuma->setText(msj(Msj::SumaMostradas, textoImporte(suma)));
    m_lblVacio->setVisible(m_modelo->rowCount() == 0);
    m_lblVacio->setText(motivoVacio());
    m_cmdPlantilla->setEnabled(guardadas < todas.size());
}

QString FrmPendientes::motivoVacio() const
{
    if (m_modelo->todas().isEmpty())
        return msj(Msj::SinDeclarantes);
    if (m_busqueda->hayAlgunaCondicion())
        return msj(Msj::NingunDeclaranteContiene, m_busqueda->texto());
    return msj(m_cmbmostrar->currentIndex() == Guardadas ? Msj::NingunaGuardada
                                                         : Msj::NingunaPendiente);
}

/// The first row when that declarant is not shown.
void FrmPendientes::seleccionarDeclarante(qint32 csco)
{
    const int fila = std::max(0, m_modelo->buscar(&Fila::csco, csco));
    m_flxPendientes->selectRow(fila);
    m_flxPendientes->scrollTo(m_modelo->index(fila, DNI), QAbstractItemView::PositionAtCenter);
    alSeleccionar();
}

const DeclarantePendiente *FrmPendientes::filaActual() const
{
    const int fila = filaUnica(*m_flxPendientes);
    return fila < 0 ? nullptr : &m_modelo->fila(fila);
}

void FrmPendientes::alSeleccionar()
{
    const auto *fila = filaActual();
    estado().CSCO(fila ? fila->csco : 0);
    m_cmdAceptar->setEnabled(fila);
    m_cmdImprimir->setEnabled(!filasParaImprimir().isEmpty());
}

/// The stored ones of several rows selected, else of all that are shown.
QList<int> FrmPendientes::filasParaImprimir() const
{
    QList<int> filas = filasElegidas(*m_flxPendientes);
    if (filas.size() < 2) {
        filas.resize(m_modelo->rowCount());
        std::iota(filas.begin(), filas.end(), 0);
    }
    filas.removeIf([this](int fila) { return m_modelo->fila(fila).csde == 0; });
    return filas;
}

void FrmPendientes::imprimir()
{
    QList<Fila> filas;
    for (const int fila : filasParaImprimir())
        filas.append(m_modelo->fila(fila));
    unico::la<cImprimirVarias>().Pedir(estado().ParaImprimir(filas));
    Q_EMIT mostrar(Pantalla::ImprimirVarias);
}

void FrmPendientes::abrir()
{
    const auto *fila = filaActual();
    if (!fila)
        return;
    auto &resumen = unico::la<cDecResumen>();
    resumen.ENTRADA(Entrada::Abrir);
    resumen.TomarDeclarante(fila->csco, fila->dni, fila->nombre);
    resumen.Pedir(estado().CABECERA());
    Q_EMIT mostrar(Pantalla::Resumen);
}

void FrmPendientes::guardarPlantilla()
{
    const auto &[contenido, cuantos] = estado().Plantilla(m_modelo->todas());
    const auto &c = estado().CABECERA();
    QString nombre = u"%1_%2"_s.arg(c.modelo).arg(c.ejercicio);
    if (c.tipologia == Tipologia430)
        nombre += u"-%1"_s.arg(c.periodo, 2, 10, QChar(u'0'));
    const QString ruta = ficheros::guardar(this, msj(Msj::TituloPendientes),
                                           QDir(ficheros::propuesta()).filePath(nombre + u".csv"_s),
                                           msj(Msj::FiltroCsv));
    if (ruta.isEmpty())
        return;
    if (const QString motivo = guardarFichero(ruta, contenido); !motivo.isEmpty())
        return aviso(motivo);
    decir(msj(Msj::PlantillaGuardada, QString::number(cuantos), QDir::toNativeSeparators(ruta)));
}

/// Escape leaves the screen, once the search box is empty.
void FrmPendientes::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && m_busqueda->hayAlgunaCondicion())
        m_busqueda->OcultarTxtBusqueda();
    else
        PantallaBase::keyPressEvent(evento);
}
