#pragma once

#include "server/Conexion.h"

namespace servidor {

/// One use of a prepared statement: bind, step, read. Errors come out as ErrorDatos.
class Sentencia
{
public:
    Sentencia(const PConexion &conexion, std::string_view sql);
    ~Sentencia();
    Sentencia(const Sentencia &) = delete;
    Sentencia &operator=(const Sentencia &) = delete;

    /// Binds the values to the statement's parameters in order; all of them each time.
    template <class... Valores> Sentencia &con(const Valores &...valores)
    {
        m_sentencia->tryReset();
        int indice = 0;
        (ligar(++indice, valores), ...);
        return *this;
    }
    void ligar(int indice, qint64 valor);
    void ligar(int indice, const QString &valor);
    void ligar(int indice, const std::string &valor);
    /// Without a copy: `valor` must stay as it is while the statement runs.
    void ligarFijo(int indice, const std::string &valor);

    bool fila(); ///< steps to the next row; false when there is none
    void filaDebida(); ///< the same for a row that has to be there; throws ErrorDatos
    int ejecutar(); ///< runs to the end; how many rows it changed. It can be bound again then

    qint64 entero(int columna) const;
    qint32 clave(int columna) const { return static_cast<qint32>(entero(columna)); }
    QString texto(int columna) const;
    bool esEntero(int columna) const;
    int columnas() const { return m_sentencia->getColumnCount(); }

private:
    PConexion m_conexion;
    std::unique_ptr<SQLite::Statement> m_sentencia;
};

} // namespace servidor
