#include "widgets/ModeloFilas.h"

void ModeloFilas::columnas(QList<ColumnaLista> columnas)
{
    if (columnas.size() == m_columnas.size()) {
        m_columnas = std::move(columnas);
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        if (rowCount() > 0)
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_columnas = std::move(columnas);
    endResetModel();
}

void ModeloFilas::filas(Filas filas)
{
    beginResetModel();
    m_filas = std::move(filas);
    endResetModel();
}

int ModeloFilas::buscar(int elemento, const QVariant &valor) const
{
    for (int i = 0; i < m_filas.size(); ++i)
        if (fila(i).value(elemento) == valor)
            return i;
    return -1;
}

int ModeloFilas::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_filas.size());
}

int ModeloFilas::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_columnas.size());
}

QVariant ModeloFilas::data(const QModelIndex &indice, int papel) const
{
    const auto &columna = m_columnas.at(indice.column());
    if (papel == Qt::TextAlignmentRole)
        return QVariant::fromValue<int>(columna.alineacion | Qt::AlignVCenter);
    if (papel != Qt::DisplayRole)
        return {};
    const auto celdas = fila(indice.row());
    return columna.texto ? columna.texto(celdas) : celdas.value(columna.elemento);
}

QVariant ModeloFilas::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion != Qt::Horizontal || seccion >= m_columnas.size())
        return {};
    if (papel == Qt::DisplayRole)
        return m_columnas.at(seccion).titulo;
    if (papel == Qt::ToolTipRole && !m_columnas.at(seccion).pista.isEmpty())
        return m_columnas.at(seccion).pista;
    if (papel == Qt::TextAlignmentRole)
        return QVariant::fromValue<int>(m_columnas.at(seccion).alineacion | Qt::AlignVCenter);
    return {};
}
