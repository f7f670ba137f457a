#include "widgets/Disposicion.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

QLabel *nuevaEtiqueta(const QString &nombre, QWidget *padre, QWidget *de)
{
    auto *etiqueta = new QLabel(padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setBuddy(de);
    return etiqueta;
}

void enlazarTab(const QList<QWidget *> &controles)
{
    for (qsizetype i = 1; i < controles.size(); ++i)
        QWidget::setTabOrder(controles[i - 1], controles[i]);
}

void agrandarLetra(QWidget *control, double aumento)
{
    QFont letra = control->font();
    letra.setPointSizeF(letra.pointSizeF() * aumento);
    control->setFont(letra);
}

QLabel *nuevoVacio(QTableView *lista)
{
    auto *etiqueta = nuevaEtiqueta(u"lblVacio"_s, lista->viewport());
    etiqueta->setWordWrap(true);
    etiqueta->setAlignment(Qt::AlignCenter);
    auto *centro = new QVBoxLayout(lista->viewport());
    centro->addWidget(etiqueta);
    return etiqueta;
}

QFrame *nuevaRaya(QWidget *padre)
{
    auto *linea = new QFrame(padre);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);
    return linea;
}

void prepararTabla(QTableView *tabla)
{
    tabla->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabla->setSelectionMode(QAbstractItemView::SingleSelection);
    tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla->setAlternatingRowColors(true);
    tabla->setShowGrid(false);
    tabla->setTabKeyNavigation(false);
    tabla->setWordWrap(false);
    tabla->setCornerButtonEnabled(false);
    tabla->verticalHeader()->hide();
    tabla->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabla->verticalHeader()->setDefaultSectionSize(tabla->fontMetrics().height() + 8);
    tabla->horizontalHeader()->setHighlightSections(false);
    tabla->horizontalHeader()->setStretchLastSection(true);
}

namespace {

/// A text that its cell cuts off is the tip of the cell.
class CeldaConPista : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *evento, QAbstractItemView *vista, const QStyleOptionViewItem &opcion,
                   const QModelIndex &celda) override
    {
        if (evento->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(evento, vista, opcion, celda);
        const bool cortada = sizeHint(opcion, celda).width() > vista->visualRect(celda).width();
        QToolTip::showText(evento->globalPos(), cortada ? celda.data().toString() : QString(),
                           vista);
        return cortada;
    }
};

/// Ctrl+Home and Ctrl+End in a list of which several rows can be selected, and columns that are
/// never narrower than their titles.
class ListaDeVarias : public QObject
{
public:
    explicit ListaDeVarias(QTableView *tabla)
        : QObject(tabla)
        , m_tabla(tabla)
    {
        tabla->installEventFilter(this);
        connect(tabla->model(), &QAbstractItemModel::headerDataChanged, this,
                [this] { ensanchar(); });
    }

    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        if (evento->type() == QEvent::Show)
            ensanchar();
        const auto *tecla
            = evento->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(evento) : nullptr;
        if (!tecla || tecla->modifiers() != Qt::ControlModifier
            || (tecla->key() != Qt::Key_Home && tecla->key() != Qt::Key_End))
            return QObject::eventFilter(objeto, evento);
        const int fila = tecla->key() == Qt::Key_Home ? 0 : m_tabla->model()->rowCount() - 1;
        m_tabla->selectionModel()->setCurrentIndex(
            m_tabla->model()->index(fila, std::max(0, m_tabla->currentIndex().column())),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    }

private:
    void ensanchar() const
    {
        auto *cabecera = m_tabla->horizontalHeader();
        for (int i = 0; i < cabecera->count(); ++i)
            if (!cabecera->isSectionHidden(i)
                && cabecera->sectionResizeMode(i) != cabecera->Stretch)
                cabecera->resizeSection(
                    i, std::max(cabecera->sectionSize(i), cabecera->sectionSizeHint(i)));
    }

    QTableView *m_tabla;
};

} // namespace

void prepararTablaDeVarias(QTableView *tabla)
{
    prepararTabla(tabla);
    tabla->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tabla->setItemDelegate(new CeldaConPista(tabla));
    new ListaDeVarias(tabla);
}
