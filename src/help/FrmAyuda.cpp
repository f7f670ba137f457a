#include "help/FrmAyuda.h"

#include "core/Textos.h"
#include "help/TemasAyuda.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

#include <span>

using namespace Qt::StringLiterals;

static constexpr int LugarTema = Qt::UserRole;

static QPointer<FrmAyuda> &abierta()
{
    static QPointer<FrmAyuda> ventana;
    return ventana;
}

void FrmAyuda::mostrar(const QString &tema)
{
    // a window below a modal screen answers to nothing, so this one belongs to what is in front
    auto *modal = QApplication::activeModalWidget();
    auto *padre = modal ? modal : QApplication::activeWindow();
    auto &ventana = abierta();
    if (!ventana)
        ventana = new FrmAyuda(padre);
    else if (modal && ventana->parentWidget() != modal)
        ventana->setParent(modal, Qt::Window);
    ventana->ir(tema);
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
}

FrmAyuda::FrmAyuda(QWidget *padre)
    : QWidget(padre, Qt::Window)
    , m_tabAyuda(new QTabWidget(this))
    , m_lstContenido(lista(u"lstContenido"_s))
    , m_lstIndice(lista(u"lstIndice"_s))
    , m_lstResultados(lista(u"lstResultados"_s))
    , m_txtIndice(caja(u"txtIndice"_s))
    , m_txtBuscar(caja(u"txtBuscar"_s))
    , m_txtTema(new QTextBrowser(this))
    , m_cmdAtras(boton(u"cmdAtras"_s, Qt::LeftArrow))
    , m_cmdAdelante(boton(u"cmdAdelante"_s, Qt::RightArrow))
{
    setObjectName(u"FrmAyuda"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(icono(Icono::Ayuda));
    m_tabAyuda->setObjectName(u"tabAyuda"_s);
    m_txtTema->setObjectName(u"txtTema"_s);
    m_txtTema->document()->setDocumentMargin(14);
    m_txtTema->document()->setDefaultStyleSheet(
        u"dt { font-weight: bold; margin-top: 8px } dd, li, p { margin-bottom: 6px }"_s);
    disponer();
    Anadir_captions();
    connect(m_txtIndice, &QLineEdit::textChanged, this, &FrmAyuda::filtrarIndice);
    connect(m_txtBuscar, &QLineEdit::textChanged, this, &FrmAyuda::buscar);
    connect(m_cmdAtras, &QToolButton::clicked, m_txtTema, &QTextBrowser::backward);
    connect(m_cmdAdelante, &QToolButton::clicked, m_txtTema, &QTextBrowser::forward);
    connect(m_txtTema, &QTextBrowser::backwardAvailable, m_cmdAtras, &QWidget::setEnabled);
    connect(m_txtTema, &QTextBrowser::forwardAvailable, m_cmdAdelante, &QWidget::setEnabled);
}

QListWidget *FrmAyuda::lista(const QString &nombre)
{
    auto *nueva = new QListWidget(this);
    nueva->setObjectName(nombre);
    nueva->setWordWrap(true);
    const auto abrir = [this](const QListWidgetItem *fila) {
        if (fila && !fila->data(LugarTema).toString().isEmpty())
            ir(fila->data(LugarTema).toString());
    };
    connect(nueva, &QListWidget::itemClicked, this, abrir);
    connect(nueva, &QListWidget::currentItemChanged, this, [nueva, abrir](auto *fila) {
        if (nueva->hasFocus())
            abrir(fila);
    });
    return nueva;
}

QLineEdit *FrmAyuda::caja(const QString &nombre)
{
    auto *nueva = new QLineEdit(this);
    nueva->setObjectName(nombre);
    nueva->setClearButtonEnabled(true);
    return nueva;
}

QToolButton *FrmAyuda::boton(const QString &nombre, Qt::ArrowType flecha)
{
    auto *nuevo = new QToolButton(this);
    nuevo->setObjectName(nombre);
    nuevo->setArrowType(flecha);
    nuevo->setAutoRaise(true);
    nuevo->setEnabled(false);
    return nuevo;
}

/// A page of the tabs: a box over the list that it filters.
static QWidget *pagina(std::initializer_list<QWidget *> piezas)
{
    auto *nueva = new QWidget;
    auto *columna = new QVBoxLayout(nueva);
    for (auto *pieza : piezas)
        columna->addWidget(pieza);
    return nueva;
}

void FrmAyuda::disponer()
{
    m_tabAyuda->addTab(pagina({m_lstContenido}), {});
    m_tabAyuda->addTab(pagina({m_txtIndice, m_lstIndice}), {});
    m_tabAyuda->addTab(pagina({m_txtBuscar, m_lstResultados}), {});

    auto *derecha = new QWidget(this);
    auto *columna = new QVBoxLayout(derecha);
    columna->setContentsMargins(0, 0, 0, 0);
    auto *flechas = new QHBoxLayout;
    flechas->addWidget(m_cmdAtras);
    flechas->addWidget(m_cmdAdelante);
    flechas->addStretch();
    columna->addLayout(flechas);
    columna->addWidget(m_txtTema);

    auto *partes = new QSplitter(this);
    partes->addWidget(m_tabAyuda);
    partes->addWidget(derecha);
    partes->setStretchFactor(1, 1);
    partes->setChildrenCollapsible(false);
    auto *todo = new QVBoxLayout(this);
    todo->addWidget(partes);
    const int letra = fontMetrics().averageCharWidth();
    const QSize deseado(150 * letra, 38 * fontMetrics().height());
    const QSize marco(2 * letra, 3 * fontMetrics().height()); // around the window
    resize(deseado.boundedTo(screen()->availableSize() - marco));
    partes->setSizes({45 * letra, 105 * letra});
    enlazarTab({m_tabAyuda, m_lstContenido, m_txtIndice, m_lstIndice, m_txtBuscar, m_lstResultados,
                m_cmdAtras, m_cmdAdelante, m_txtTema});
}

void FrmAyuda::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloAyuda));
    m_tabAyuda->setTabText(0, msj(Msj::AyudaPestanaContenido));
    m_tabAyuda->setTabText(1, msj(Msj::AyudaPestanaIndice));
    m_tabAyuda->setTabText(2, msj(Msj::AyudaPestanaBuscar));
    m_txtIndice->setPlaceholderText(msj(Msj::AyudaPistaIndice));
    m_txtBuscar->setPlaceholderText(msj(Msj::AyudaPistaBuscar));
    m_cmdAtras->setToolTip(msj(Msj::AyudaAtras));
    m_cmdAdelante->setToolTip(msj(Msj::AyudaAdelante));
    nombrar();
    llenar();
}

/// What a screen reader says of each control.
void FrmAyuda::nombrar()
{
    const std::pair<QWidget *, Msj> nombres[] = {
        {m_tabAyuda, Msj::TituloAyuda},         {m_lstContenido, Msj::AyudaPestanaContenido},
        {m_lstIndice, Msj::AyudaPestanaIndice}, {m_lstResultados, Msj::AyudaPestanaBuscar},
        {m_txtIndice, Msj::AyudaPistaIndice},   {m_txtBuscar, Msj::AyudaPistaBuscar},
        {m_cmdAtras, Msj::AyudaAtras},          {m_cmdAdelante, Msj::AyudaAdelante},
        {m_txtTema, Msj::AyudaPagina},
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(msj(nombre).remove(u'&'));
}

static void poner(QListWidget *lista, std::span<const ayuda::Entrada> entradas)
{
    lista->clear();
    for (const auto &entrada : entradas) {
        auto *fila = new QListWidgetItem(entrada.texto, lista);
        fila->setData(LugarTema, entrada.tema);
    }
}

void FrmAyuda::llenar()
{
    QList<ayuda::Entrada> titulos;
    for (const auto &tema : ayuda::temas())
        titulos.append({tema.titulo, tema.nombre});
    poner(m_lstContenido, titulos);
    poner(m_lstIndice, ayuda::indice());
    filtrarIndice();
    buscar();
}

void FrmAyuda::filtrarIndice()
{
    const QString escrito = ayuda::plegar(m_txtIndice->text());
    for (int i = 0; i < m_lstIndice->count(); ++i) {
        auto *fila = m_lstIndice->item(i);
        fila->setHidden(!ayuda::plegar(fila->text()).contains(escrito));
    }
}

void FrmAyuda::buscar()
{
    const auto hallados = ayuda::buscar(m_txtBuscar->text());
    poner(m_lstResultados, hallados);
    if (hallados.isEmpty() && !m_txtBuscar->text().isEmpty()) {
        auto *ninguno = new QListWidgetItem(msj(Msj::AyudaSinResultados), m_lstResultados);
        ninguno->setFlags(Qt::NoItemFlags);
    }
}

void FrmAyuda::ir(const QString &tema)
{
    m_txtTema->setSource(QUrl(ayuda::direccion(tema)));
}

void FrmAyuda::changeEvent(QEvent *evento)
{
    if (evento->type() == QEvent::LanguageChange) {
        Anadir_captions();
        ir(m_txtTema->source().fileName());
    }
    QWidget::changeEvent(evento);
}

void FrmAyuda::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}
