#include "widgets/AccionesFilas.h"

#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

using namespace Qt::StringLiterals;

/// The menu names what the buttons are called and allow at this moment.
static void abrirMenu(QTableView *grid, const QList<AccionFila> &acciones, const QPoint &lugar)
{
    const auto fila = grid->indexAt(lugar);
    if (!fila.isValid())
        return;
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
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(grid, &QTableView::customContextMenuRequested, grid,
                     [=](const QPoint &lugar) { abrirMenu(grid, acciones, lugar); });
}
