#pragma once

#include <QKeySequence>
#include <QList>

class QPushButton;
class QTableView;

/// What a button does to the row selected, from the row itself.
struct AccionFila
{
    QPushButton *boton;
    QKeySequence tecla; ///< pressed in the grid; may be empty
};

/// Gives the rows of a grid a context menu and keys that press these buttons.
void ponerAcciones(QTableView *grid, const QList<AccionFila> &acciones);
