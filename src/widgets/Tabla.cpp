#include "widgets/Tabla.h"

#include <QHeaderView>
#include <QTableView>

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
