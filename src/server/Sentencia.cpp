#include "server/Sentencia.h"

#include "server/Comprobacion.h"

using namespace Qt::StringLiterals;

namespace servidor {

Sentencia::Sentencia(const PConexion &conexion, std::string_view sql)
    : m_conexion(conexion)
    , m_sentencia(conexion->tomar(sql))
{
}

Sentencia::~Sentencia()
{
    m_conexion->devolver(std::move(m_sentencia));
}

void Sentencia::ligar(int indice, qint64 valor)
{
    m_sentencia->bind(indice, static_cast<std::int64_t>(valor));
}

void Sentencia::ligar(int indice, const QString &valor)
{
    m_sentencia->bind(indice, valor.toStdString());
}

void Sentencia::ligar(int indice, const std::string &valor)
{
    m_sentencia->bind(indice, valor);
}

void Sentencia::ligarFijo(int indice, const std::string &valor)
{
    m_sentencia->bindNoCopy(indice, valor);
}

void Sentencia::filaDebida()
{
    if (fila())
        return;
    const QString ruta = m_conexion->ruta();
    Conexion::olvidar(ruta);
    throw ErrorDatos(Fallo::Incompleta, ruta, u"a row is missing"_s);
}

bool Sentencia::fila()
{
    return conErroresDe(*m_conexion, [&] { return m_sentencia->executeStep(); });
}

int Sentencia::ejecutar()
{
    while (fila()) {}
    const int cambiadas = m_sentencia->getChanges();
    m_sentencia->tryReset();
    return cambiadas;
}

qint64 Sentencia::entero(int columna) const
{
    return m_sentencia->getColumn(columna).getInt64();
}

QString Sentencia::texto(int columna) const
{
    const auto valor = m_sentencia->getColumn(columna);
    const char *texto = valor.getText();
    return QString::fromUtf8(texto, valor.getBytes());
}

bool Sentencia::esEntero(int columna) const
{
    return m_sentencia->getColumn(columna).isInteger();
}

} // namespace servidor
