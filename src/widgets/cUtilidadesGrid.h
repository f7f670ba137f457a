#pragma once

#include <QObject>

class CajaBusqueda;
class QTableView;

/// Type-to-search for a list grid: what is typed in the grid appears in a box laid over it and the
/// first row whose sorted column begins so (or else contains it) is selected. Escape clears it.
class cUtilidadesGrid : public QObject
{
    Q_OBJECT

public:
    explicit cUtilidadesGrid(QTableView *Flex);

    /// The column searched; the box is laid over its header.
    void columna(int columna);
    void PosicionarTxtBusqueda();
    void OcultarTxtBusqueda();
    bool hayAlgunaCondicion() const;

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void SeleccionarGrid(const QString &texto);
    bool tecla(class QKeyEvent *evento);

    QTableView *m_flex;
    CajaBusqueda *m_txtBusqueda;
    int m_columna = 0;
};
