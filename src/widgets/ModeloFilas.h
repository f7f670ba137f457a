#pragma once

#include "dataservice/Registros.h"

#include <QAbstractTableModel>

#include <functional>

/// One column of a list: which element of the row it shows, and how.
struct ColumnaLista
{
    int elemento = 0; ///< index in the service's row
    QString titulo; ///< in the session's language
    Qt::Alignment alineacion = Qt::AlignLeft;
    std::function<QString(const QVariantList &)>
        texto{}; ///< from the whole row; else the element itself
    QString pista{}; ///< tip of the header
};

/// The rows of the data service as a Qt model, without copying them.
class ModeloFilas : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// May be called again with as many columns, when the language changes: selection and place
    /// stay.
    void columnas(QList<ColumnaLista> columnas);
    void filas(Filas filas);

    QVariantList fila(int numero) const { return m_filas.value(numero).toList(); }
    /// Number of the first row whose element `elemento` is `valor`; -1 when there is none.
    int buscar(int elemento, const QVariant &valor) const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    QList<ColumnaLista> m_columnas;
    Filas m_filas;
};
