#include "widgets/Disposicion.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>

#include <algorithm>

QLabel *nuevaEtiqueta(const QString &nombre, QWidget *padre, QWidget *de)
{
    auto *etiqueta = new QLabel(padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setBuddy(de);
    return etiqueta;
}

void agrandarLetra(QWidget *control, double aumento)
{
    QFont letra = control->font();
    letra.setPointSizeF(letra.pointSizeF() * aumento);
    control->setFont(letra);
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

/// Ctrl+Home and Ctrl+End in a list of which several rows can be selected.
class TeclasDeFin : public QObject
{
public:
    explicit TeclasDeFin(QTableView *tabla)
        : QObject(tabla)
        , m_tabla(tabla)
    {
        tabla->installEventFilter(this);
    }

    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
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
    QTableView *m_tabla;
};

} // namespace

void prepararTablaDeVarias(QTableView *tabla)
{
    prepararTabla(tabla);
    tabla->setSelectionMode(QAbstractItemView::ExtendedSelection);
    new TeclasDeFin(tabla);
}
