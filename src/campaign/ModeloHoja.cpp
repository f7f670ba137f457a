#include "campaign/ModeloHoja.h"

#include "core/Importe.h"
#include "core/Textos.h"

using namespace Qt::StringLiterals;

using Fila = FilaDeclaraciones;

ModeloHoja::ModeloHoja(cImportarDeclaraciones &hoja, QObject *padre)
    : QAbstractTableModel(padre)
    , m_hoja(hoja)
{
}

void ModeloHoja::renovar()
{
    beginResetModel();
    endResetModel();
}

int ModeloHoja::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_hoja.filas().size());
}

int ModeloHoja::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : Total;
}

bool ModeloHoja::elegible(int numero) const
{
    const auto estado = fila(numero).estado;
    return estado == Fila::Nueva || estado == Fila::Sustituye;
}

void ModeloHoja::alternar(int numero)
{
    setData(index(numero, Marca), fila(numero).marcada ? Qt::Unchecked : Qt::Checked,
            Qt::CheckStateRole);
}

bool ModeloHoja::setData(const QModelIndex &indice, const QVariant &valor, int papel)
{
    if (papel != Qt::CheckStateRole || indice.column() != Marca || !elegible(indice.row()))
        return false;
    m_hoja.marcar(indice.row(), valor.value<Qt::CheckState>() == Qt::Checked);
    Q_EMIT dataChanged(indice, indice);
    Q_EMIT marcada();
    return true;
}

static QString textoEstado(Fila::Estado estado)
{
    static constexpr Msj textos[] = {Msj::FilaNueva, Msj::FilaSustituye, Msj::FilaRechazada,
                                     Msj::FilaGuardada, Msj::FilaNoGuardada};
    return msj(textos[estado]);
}

QString ModeloHoja::texto(const Fila &fila, int columna) const
{
    const auto &c = fila.cabecera;
    const bool calculada = fila.estado != Fila::Rechazada;
    switch (columna) {
    case Linea:
        return QString::number(fila.linea);
    case Dni:
        return fila.dni;
    case Ejercicio:
        return c.ejercicio == 0 ? QString() : QString::number(c.ejercicio);
    case Periodo:
        return c.periodo == 0 ? QString() : textoPeriodo(c.periodicidad, c.periodo);
    case Resultado:
        return textoEstado(fila.estado);
    case Importe:
        return calculada ? textoImporte(fila.importe) : QString();
    case Anterior:
        return fila.sustituye() && calculada ? textoImporte(fila.anterior) : QString();
    case Motivo:
        return fila.textoMotivo();
    default:
        return {};
    }
}

static QVariant alineacion(int columna)
{
    const bool cifras = columna == ModeloHoja::Importe || columna == ModeloHoja::Anterior
        || columna == ModeloHoja::Linea;
    return QVariant::fromValue(Qt::Alignment(cifras ? Qt::AlignRight : Qt::AlignLeft)
                               | Qt::AlignVCenter);
}

QVariant ModeloHoja::data(const QModelIndex &indice, int papel) const
{
    const Fila &una = fila(indice.row());
    const int columna = indice.column();
    if (papel == Qt::DisplayRole)
        return texto(una, columna);
    if (papel == Qt::CheckStateRole && columna == Marca && elegible(indice.row()))
        return una.marcada ? Qt::Checked : Qt::Unchecked;
    return papel == Qt::TextAlignmentRole ? alineacion(columna) : QVariant();
}

QVariant ModeloHoja::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    static constexpr Msj titulos[] = {
        Msj::ColumnaLinea, Msj::ColumnaLinea,     Msj::ColumnaDni,     Msj::Ejercicio,
        Msj::Periodo,      Msj::ColumnaResultado, Msj::ColumnaImporte, Msj::ColumnaImporteAnterior,
        Msj::ColumnaMotivo};
    if (orientacion != Qt::Horizontal || seccion == Marca)
        return {};
    if (papel == Qt::TextAlignmentRole)
        return alineacion(seccion);
    if (papel != Qt::DisplayRole)
        return {};
    return msj(titulos[seccion]);
}

Qt::ItemFlags ModeloHoja::flags(const QModelIndex &indice) const
{
    const auto comunes = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return indice.column() == Marca && elegible(indice.row()) ? comunes | Qt::ItemIsUserCheckable
                                                              : comunes;
}
