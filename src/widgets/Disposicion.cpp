#include "widgets/Disposicion.h"

#include <QHeaderView>
#include <QLabel>
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
