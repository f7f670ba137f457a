#include "widgets/SelectorLista.h"

#include "widgets/PantallaBase.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidget>
#include <QVBoxLayout>

SelectorLista::SelectorLista(const QString &nombre, QWidget *padre)
    : QFrame(padre)
    , m_vista(new QTreeWidget(this))
{
    m_vista->setObjectName(nombre);
    m_vista->setRootIsDecorated(false);
    m_vista->setUniformRowHeights(true);
    m_vista->setColumnCount(1);
    m_vista->setFrameShape(QFrame::NoFrame);
    m_vista->installEventFilter(this);
    connect(m_vista, &QTreeWidget::itemDoubleClicked, this, [this] { tomar(); });

    auto *disposicion = new QVBoxLayout(this);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->addWidget(m_vista);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    hide();
}

void SelectorLista::cargar(const ListaCodigos &lista)
{
    const auto actual = m_lista.value(m_vista->indexOfTopLevelItem(m_vista->currentItem())).codigo;
    m_lista = lista;
    m_vista->clear();
    for (const auto &elemento : lista) {
        auto *fila = new QTreeWidgetItem(m_vista, {elemento.nombre});
        fila->setData(0, Qt::UserRole, QString(elemento.codigo + u'c'));
    }
    if (const int fila = posicionCodigo(m_lista, actual); fila >= 0)
        m_vista->setCurrentItem(m_vista->topLevelItem(fila));
}

void SelectorLista::cabecera(const QString &titulo, const QString &nombreAccesible)
{
    m_vista->setHeaderLabels({titulo});
    m_vista->setAccessibleName(nombreAccesible);
}

void SelectorLista::abrir(const QString &codigo)
{
    const int actual = posicionCodigo(m_lista, codigo);
    m_vista->setCurrentItem(m_vista->topLevelItem(std::max(actual, 0)));
    show();
    raise();
    m_vista->scrollToItem(m_vista->currentItem(), QAbstractItemView::PositionAtCenter);
    m_vista->setFocus(Qt::OtherFocusReason);
}

void SelectorLista::tomar()
{
    const auto fila = m_vista->indexOfTopLevelItem(m_vista->currentItem());
    if (fila < 0)
        return;
    hide();
    const auto elemento = m_lista.at(fila);
    if (!procedimiento(pantallaDe(this), [&] { alElegir(elemento.codigo, elemento.nombre); }))
        Q_EMIT cancelado();
}

bool SelectorLista::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress)
        return QFrame::eventFilter(objeto, evento);
    switch (static_cast<QKeyEvent *>(evento)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        tomar();
        return true;
    case Qt::Key_Escape:
        hide();
        Q_EMIT cancelado();
        return true;
    default:
        return QFrame::eventFilter(objeto, evento);
    }
}
