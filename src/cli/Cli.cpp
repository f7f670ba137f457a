#include "cli/Cli.h"

#include "cli/Linea.h"
#include "cli/Orden.h"
#include "core/Rutas.h"
#include "core/Sesion.h"
#include "core/Textos.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

bool hayOrden(const QStringList &argumentos)
{
    const Linea linea = leerLinea(argumentos);
    const auto &opciones = linea.argumentos.opciones;
    const bool soloCarpeta
        = opciones.size() == 1 && linea.argumentos.valores(Comun::Carpeta).size() == 1;
    return linea.fallo || !linea.palabras.isEmpty() || !(opciones.isEmpty() || soloCarpeta);
}

bool dibujaPaginas(const QStringList &argumentos)
{
    return leerLinea(argumentos).palabras.value(0) == u"imprimir";
}

std::optional<QString> carpetaPedida(const QStringList &argumentos)
{
    const QString carpeta = leerLinea(argumentos).argumentos.valor(Comun::Carpeta);
    return carpeta.isEmpty() ? std::nullopt : std::optional(carpeta);
}

static Resultado malUso(const Linea::Fallo &fallo)
{
    leerIdiomaGuardado();
    return malUso(msj(fallo.cual, fallo.dato) + u'\n' + msj(Msj::CliVerAyuda));
}

static Resultado informar(const Linea &linea)
{
    leerIdiomaGuardado();
    if (linea.argumentos.tiene(Comun::Ayuda))
        return hecho(textoAyuda(linea.palabras));
    return hecho(msj(Msj::TituloPrograma) + u' ' + QCoreApplication::applicationVersion());
}

static Resultado enSesion(const Orden &orden, const Argumentos &argumentos)
{
    if (orden.necesita == Orden::Nada) {
        leerIdiomaGuardado();
        return orden.ejecutar(argumentos);
    }
    if (!rutas().deUsuario && !QFileInfo(rutas().programa).isDir())
        return rechazado(msj(Msj::CliCarpetaNoExiste, rutas().programa));
    const InicioSesion inicio = iniciarSesion();
    if (inicio.terminar || !(inicio.fallos.isEmpty() || orden.necesita == Orden::DatosAunqueFallen))
        return rechazado(inicio.textos().join(u'\n'));
    try {
        return orden.ejecutar(argumentos);
    } catch (...) {
        return rechazado(msj(orden.alFallar, textoFalloActual()));
    }
}

static Resultado resolver(const QStringList &argumentos)
{
    Linea linea = leerLinea(argumentos);
    if (linea.argumentos.tiene(Comun::Ayuda) || linea.argumentos.tiene(Comun::Version))
        return informar(linea);
    if (linea.fallo)
        return malUso(*linea.fallo);
    const Orden *orden = buscarOrden(linea.palabras);
    if (!orden)
        return malUso({Msj::CliOrdenDesconocida, linea.palabras.join(u' ')});
    if (const auto fallo = ajustar(linea, *orden))
        return malUso(*fallo);
    return enSesion(*orden, linea.argumentos);
}

int ejecutarOrden(const QStringList &argumentos)
{
    const Resultado resultado = resolver(argumentos);
    QTextStream destino(resultado.salida == Salida::Hecho ? stdout : stderr);
    if (!resultado.texto.isEmpty())
        destino << resultado.texto << '\n';
    return static_cast<int>(resultado.salida);
}
