#include "exchange/FicheroErrores.h"

#include "core/Rutas.h"
#include "core/Textos.h"
#include "exchange/LineaIntercambio.h"

using namespace Qt::StringLiterals;

QString FicheroErrores::ruta()
{
    return rutas().tablas + u"Errores.txt"_s;
}

FicheroErrores::FicheroErrores()
    : m_salida(ruta(), FicheroSalida::EnSuLugar)
{
}

void FicheroErrores::escribir(const QString &linea)
{
    m_salida.escribir(intercambio::codificar(linea) + "\r\n");
}

void FicheroErrores::anotar(qint64 linea, const QString &motivo)
{
    m_alguno = true;
    escribir(msj(Msj::EntradaErrores, QString::number(linea), motivo));
}

void FicheroErrores::terminar()
{
    if (m_alguno)
        for (const QString &linea : intercambio::descripcionFormato())
            escribir(linea);
    m_salida.terminar();
}
