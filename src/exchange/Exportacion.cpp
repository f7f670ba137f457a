#include "exchange/Exportacion.h"

#include "core/Rutas.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "exchange/FicheroSalida.h"
#include "exchange/LineaIntercambio.h"

#include <optional>

using namespace Qt::StringLiterals;

static constexpr qint64 CadaCuanto = 500; // lines between two looks at the user

static bool esSalidaEstandar(const QString &destino)
{
    return destino == u"-";
}

static void abrir(std::optional<FicheroSalida> &salida, const QString &destino)
{
    if (esSalidaEstandar(destino))
        salida.emplace();
    else
        salida.emplace(destino, FicheroSalida::Sobre);
}

Exportado exportar(const QString &destino, const std::function<void(const Visitante &)> &recorrer,
                   const std::function<bool(qint64)> &seguir)
{
    Exportado hecho;
    std::optional<FicheroSalida> salida;
    try {
        abrir(salida, destino);
        QByteArray linea;
        QStringList danados;
        qint64 numero = 0;
        recorrer([&](const Registro &declarante) {
            if (esDanado(declarante)) {
                danados += nombreDanado(declarante);
                return true;
            }
            linea.truncate(0);
            ++numero;
            if (const auto malo = intercambio::escribirLinea(linea, declarante)) {
                hecho.motivo = msj(Msj::CaracterSinByte, QString::number(numero), *malo);
                return false;
            }
            salida->escribir(linea);
            hecho.detenida = numero % CadaCuanto == 0 && !seguir(numero);
            return !hecho.detenida;
        });
        salida->terminar();
        salida->asegurar();
        if (hecho.motivo.isEmpty() && !danados.isEmpty())
            hecho.motivo = msj(Msj::FalloRegistroDanado, danados.join(u"; "_s));
    } catch (const std::exception &error) {
        hecho.motivo = textoFallo(error);
    }
    hecho.lineas = salida ? salida->lineas() : 0;
    return hecho;
}

QString motivoNoExportable(const QString &destino)
{
    return esSalidaEstandar(destino) ? QString() : motivoRutaRechazada(destino);
}
