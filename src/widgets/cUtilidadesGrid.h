#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class CajaBusqueda;
class QTableView;

/// Type-to-search for a list grid: what is typed in the grid appears in a box laid over it and
/// leaves only the rows that have it. Escape clears it.
class cUtilidadesGrid : public QObject
{
    Q_OBJECT

public:
    /// `filtrar` shows only the rows that have a text, or all of them when it is empty; false when
    /// there is none.
    cUtilidadesGrid(QTableView *Flex, std::function<bool(const QString &)> filtrar);

    /// The column over whose header the box is laid.
    void columna(int columna);
    void PosicionarTxtBusqueda();
    /// Empties the box; every row is shown again.
    void OcultarTxtBusqueda();
    bool hayAlgunaCondicion() const;
    QString texto() const;

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void SeleccionarGrid(const QString &texto);
    bool tecla(class QKeyEvent *evento);

    QTableView *m_flex;
    CajaBusqueda *m_txtBusqueda;
    std::function<bool(const QString &)> m_filtrar;
    int m_columna = 0;
};

class QPushButton;
class QTableView;

/// The rows selected, from the top down.
QList<int> filasElegidas(const QTableView &grid);
/// The row selected when it is the only one; else -1.
int filaUnica(const QTableView &grid);

/// What a button does to the row selected, from the row itself.
struct AccionFila
{
    QPushButton *boton;
    QKeySequence tecla; ///< pressed in the grid; may be empty
};

/// Gives the rows of a grid a context menu and keys that press these buttons, and lets the list
/// leave the program (SalidaLista.h).
void ponerAcciones(QTableView *grid, const QList<AccionFila> &acciones);
