#pragma once

#include "campaign/cImportarDeclaraciones.h"

#include <QAbstractTableModel>

/// The rows of a sheet of returns, as cImportarDeclaraciones holds them; the first column is ticked
/// for those to be stored.
class ModeloHoja : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna {
        Marca,
        Linea,
        Dni,
        Ejercicio,
        Periodo,
        Resultado,
        Importe,
        Anterior,
        Motivo,
        Total
    };

    ModeloHoja(cImportarDeclaraciones &hoja, QObject *padre);

    /// Shows what the record holds now.
    void renovar();
    /// Ticks a row, or unticks it, when it can be stored.
    void alternar(int fila);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int papel) override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;

Q_SIGNALS:
    void marcada();

private:
    const FilaDeclaraciones &fila(int numero) const { return m_hoja.filas().at(numero); }
    bool elegible(int numero) const;
    QString texto(const FilaDeclaraciones &fila, int columna) const;

    cImportarDeclaraciones &m_hoja;
};
