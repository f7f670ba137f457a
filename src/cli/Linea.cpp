#include "cli/Linea.h"

#include "cli/Orden.h"
#include "core/Caracteres.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"

#include <QCommandLineParser>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

static void agregar(QCommandLineParser &lector, QSet<QString> &puestas,
                    std::span<const Opcion> opciones)
{
    for (const Opcion &opcion : opciones) {
        const QString nombre = opcion.nombre.toString();
        if (puestas.contains(nombre))
            continue;
        puestas.insert(nombre);
        QStringList nombres{nombre};
        if (opcion.nombre == Comun::Ayuda)
            nombres.append(u"h"_s);
        lector.addOption({nombres, {}, opcion.valor.toString()});
    }
}

static QString comoSeEscribe(const QString &nombre)
{
    return nombre.size() == 1 ? u'-' + nombre : conGuiones(nombre);
}

/// Why the parser refused the line; its own text is English only.
static Linea::Fallo falloDe(const QCommandLineParser &lector, const QStringList &argumentos)
{
    if (const auto desconocidas = lector.unknownOptionNames(); !desconocidas.isEmpty())
        return {Msj::CliOpcionDesconocida, comoSeEscribe(desconocidas.first())};
    const auto sobra = std::ranges::find_if(argumentos, [&](const QString &argumento) {
        const auto igual = argumento.indexOf(u'=');
        const QString nombre = argumento.left(igual).remove(u'-');
        return igual > 0 && lector.isSet(nombre) && lector.values(nombre).isEmpty();
    });
    if (sobra != argumentos.end())
        return {Msj::CliSobra, *sobra};
    return {Msj::CliFaltaValor, argumentos.last()};
}

/// The line without "-platform NAME", which is for the window system.
static QStringList sinPlataforma(QStringList argumentos)
{
    const auto lugar = argumentos.indexOf(u"-platform"_s);
    if (lugar >= 0)
        argumentos.remove(lugar, std::min<qsizetype>(2, argumentos.size() - lugar));
    return argumentos;
}

Linea leerLinea(const QStringList &todos)
{
    const QStringList argumentos = sinPlataforma(todos);
    QCommandLineParser lector;
    lector.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    QSet<QString> puestas;
    agregar(lector, puestas, opcionesComunes());
    for (const Orden *orden : ordenes())
        agregar(lector, puestas, orden->opciones);

    Linea linea;
    if (!lector.parse(QStringList{QString()} + argumentos))
        linea.fallo = falloDe(lector, argumentos);
    linea.palabras = lector.positionalArguments();
    const QStringList nombres = lector.optionNames();
    for (const QString &nombre : std::as_const(puestas))
        if (lector.isSet(nombre)) {
            auto valores = lector.values(nombre);
            for (auto n = nombres.count(nombre) - valores.size(); n > 0; --n)
                valores.append(QString());
            linea.argumentos.opciones.insert(nombre, valores);
        }
    if (!linea.fallo && linea.argumentos.tiene(Comun::Carpeta)
        && linea.argumentos.valor(Comun::Carpeta).isEmpty())
        linea.fallo = {Msj::CliFaltaValor, conGuiones(Comun::Carpeta)};
    return linea;
}

static const Opcion *buscar(std::span<const Opcion> opciones, const QString &nombre)
{
    const auto hallada = std::ranges::find(opciones, QStringView(nombre), &Opcion::nombre);
    return hallada == opciones.end() ? nullptr : &*hallada;
}

static std::optional<Linea::Fallo> ajustarOpciones(const Argumentos &dados, const Orden &orden)
{
    for (const auto &[nombre, valores] : dados.opciones.asKeyValueRange()) {
        const Opcion *opcion = buscar(orden.opciones, nombre);
        if (!opcion)
            opcion = buscar(opcionesComunes(), nombre);
        if (!opcion)
            return Linea::Fallo{Msj::CliOpcionDesconocida, conGuiones(nombre)};
        if (valores.size() > 1 && opcion->uso != Opcion::Repetible)
            return Linea::Fallo{Msj::CliOpcionRepetida, conGuiones(nombre)};
    }
    for (const Opcion &opcion : orden.opciones)
        if (opcion.uso == Opcion::Obligatoria && !dados.tiene(opcion.nombre))
            return Linea::Fallo{Msj::CliFaltaOpcion, conGuiones(opcion.nombre)};
    return {};
}

std::optional<Linea::Fallo> ajustar(Linea &linea, const Orden &orden)
{
    if (auto fallo = ajustarOpciones(linea.argumentos, orden))
        return fallo;
    const QStringList resto = linea.palabras.mid(numeroPalabras(orden));
    const qsizetype caben = orden.argumento.isEmpty() ? 0 : 1;
    if (resto.size() > caben)
        return Linea::Fallo{Msj::CliSobra, resto[caben]};
    if (resto.isEmpty() && caben == 1 && !orden.argumento.startsWith(u'['))
        return Linea::Fallo{Msj::CliFaltaArgumento, orden.argumento.toString()};
    linea.argumentos.argumento = resto.value(0);
    return {};
}

Resultado valorMalo(QStringView opcion, const QString &valor)
{
    return malUso(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
}

int numeroDado(const Argumentos &argumentos, QStringView opcion, int maximo)
{
    const QString texto = argumentos.valor(opcion);
    const int valor = sonCifras(texto) ? texto.toInt() : 0;
    return valor <= maximo ? valor : 0;
}

Rechazo tomarDeclarante(const QString &dni)
{
    auto &declarante = unico::la<cDecDatos>();
    const qint32 csco = declarante.ObtenerCodigoDeclarante(dni.trimmed().toUpper());
    if (csco == 0)
        return rechazado(msj(Msj::CliDeclaranteNoExiste, dni));
    declarante.MODO(Modo::Consulta);
    declarante.CSCO(csco);
    declarante.CargarDeclarante(csco);
    unico::la<cDecResumen>().TomarDeclarante(csco, declarante.DNI(), declarante.NOMBRE());
    return {};
}
