#pragma once

#include <QAbstractTableModel>

#include <algorithm>
#include <functional>
#include <numeric>
#include <vector>

/// One column of a list: its title, in the session's language, and what it shows of a row.
template <class Fila> struct ColumnaLista
{
    QString titulo;
    std::function<QString(const Fila &)> texto;
    Qt::Alignment alineacion = Qt::AlignLeft;
    QString pista{}; ///< tip of the header
};

/// Rows of a record as a Qt model: held once, ordered and filtered by their positions.
template <class Fila> class ModeloFilas : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;
    using Condicion = std::function<bool(const Fila &)>;

    /// May be called again with as many columns, when the language changes: selection and place
    /// stay.
    void columnas(QList<ColumnaLista<Fila>> columnas)
    {
        const bool otras = columnas.size() != m_columnas.size();
        if (otras)
            beginResetModel();
        m_columnas = std::move(columnas);
        if (otras) {
            endResetModel();
            return;
        }
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        if (rowCount() > 0)
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }

    void filas(QList<Fila> filas)
    {
        cambiar([&](QList<Fila> &todas) { todas = std::move(filas); });
    }

    /// Lets `cambio` put the rows, shown or not, in another order, or change some of them.
    template <class Cambio> void cambiar(Cambio &&cambio)
    {
        beginResetModel();
        cambio(m_filas);
        presentarTodas();
        endResetModel();
    }

    /// Shows only the rows that meet the condition, all of them when it is empty.
    void filtrar(Condicion condicion)
    {
        beginResetModel();
        m_condicion = std::move(condicion);
        presentarTodas();
        endResetModel();
    }

    /// The row shown at `numero`.
    const Fila &fila(int numero) const { return m_filas.at(m_visibles[posicion(numero)]); }
    const QList<Fila> &todas() const { return m_filas; }
    /// Its place among all rows, shown or not.
    int lugar(int numero) const { return m_visibles[posicion(numero)]; }

    /// Place among the rows shown of the first whose `dato` is `valor`; -1 when there is none.
    template <class Valor> int buscar(Valor Fila::*dato, const Valor &valor) const
    {
        const auto hallada = std::ranges::find_if(
            m_visibles, [&](qsizetype i) { return m_filas.at(i).*dato == valor; });
        return hallada == m_visibles.end() ? -1 : static_cast<int>(hallada - m_visibles.begin());
    }

    int rowCount(const QModelIndex &padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(m_visibles.size());
    }

    int columnCount(const QModelIndex &padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(m_columnas.size());
    }

    QVariant data(const QModelIndex &indice, int papel) const override
    {
        const auto &columna = m_columnas.at(indice.column());
        if (papel == Qt::DisplayRole)
            return columna.texto(fila(indice.row()));
        return papel == Qt::TextAlignmentRole ? alineacion(columna) : QVariant();
    }

    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override
    {
        if (orientacion != Qt::Horizontal || seccion >= m_columnas.size())
            return {};
        const auto &columna = m_columnas.at(seccion);
        if (papel == Qt::DisplayRole)
            return columna.titulo;
        if (papel == Qt::ToolTipRole && !columna.pista.isEmpty())
            return columna.pista;
        return papel == Qt::TextAlignmentRole ? alineacion(columna) : QVariant();
    }

private:
    static size_t posicion(int numero) { return static_cast<size_t>(numero); }
    static QVariant alineacion(const ColumnaLista<Fila> &columna)
    {
        return QVariant::fromValue(columna.alineacion | Qt::AlignVCenter);
    }

    void presentarTodas()
    {
        m_visibles.resize(static_cast<size_t>(m_filas.size()));
        std::iota(m_visibles.begin(), m_visibles.end(), 0);
        if (m_condicion)
            std::erase_if(m_visibles, [this](int i) { return !m_condicion(m_filas.at(i)); });
    }

    QList<ColumnaLista<Fila>> m_columnas;
    QList<Fila> m_filas;
    std::vector<int> m_visibles; ///< positions in m_filas
    Condicion m_condicion;
};
