#include "widgets/Disposicion.h"

#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTableView>

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

void prepararTablaDeVarias(QTableView *tabla)
{
    prepararTabla(tabla);
    tabla->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const auto tecla : {Qt::Key_Home, Qt::Key_End}) {
        auto *atajo = new QShortcut(Qt::CTRL | tecla, tabla);
        atajo->setContext(Qt::WidgetShortcut);
        QObject::connect(atajo, &QShortcut::activated, tabla, [=] {
            tabla->selectRow(tecla == Qt::Key_Home ? 0 : tabla->model()->rowCount() - 1);
        });
    }
}
