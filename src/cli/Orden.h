#pragma once

#include <QHash>
#include <QStringList>

#include <Msj.h>
#include <span>

using namespace Qt::StringLiterals;

/// Process exit codes.
enum class Salida { Hecho = 0, Rechazado = 1, MalUso = 2 };

/// What a command ends with: its text goes to standard output when it was done, else to standard
/// error.
struct Resultado
{
    Salida salida = Salida::Hecho;
    QString texto;
};

/// An option "--nombre VALOR" of a command. An option of several commands is the same in all of
/// them as to having a value.
struct Opcion
{
    enum Uso { Obligatoria, Opcional, Repetible };

    QStringView nombre;
    QStringView valor; ///< what the help calls its value; empty for a switch
    Msj ayuda;
    Uso uso = Opcional;
};

/// The options given (a switch with an empty value) and the positional argument.
class Argumentos
{
public:
    QHash<QString, QStringList> opciones;
    QString argumento;

    bool tiene(QStringView opcion) const { return opciones.contains(opcion.toString()); }
    QStringList valores(QStringView opcion) const { return opciones.value(opcion.toString()); }
    QString valor(QStringView opcion) const { return valores(opcion).value(0); }
};

/// One command: a row of the table in Ordenes.cpp.
struct Orden
{
    QStringView palabras; ///< "declarante alta"
    Msj ayuda;
    QStringView argumento; ///< positional argument as the help shows it; in brackets when optional
    std::span<const Opcion> opciones;
    Msj alFallar; ///< what could not be done when an exception ends it; %1 the reason
    Resultado (*ejecutar)(const Argumentos &); ///< runs in the session
    enum { Datos, DatosAunqueFallen, Nada } necesita = Datos; ///< Nada: no session is begun
};

inline Resultado hecho(const QString &texto)
{
    return {Salida::Hecho, texto};
}

inline Resultado rechazado(const QString &motivo)
{
    return {Salida::Rechazado, motivo};
}

inline Resultado malUso(const QString &motivo)
{
    return {Salida::MalUso, motivo};
}

/// "--nombre", as messages name an option.
inline QString conGuiones(QStringView opcion)
{
    return u"--"_s + opcion.toString();
}

/// Options that every command takes.
namespace Comun {
inline constexpr QStringView Carpeta = u"carpeta";
inline constexpr QStringView Ayuda = u"help";
inline constexpr QStringView Version = u"version";
} // namespace Comun

/// Every command, in the order in which the help lists them.
std::span<const Orden *const> ordenes();
std::span<const Opcion> opcionesComunes();

/// The command that `palabras` begins with; null when there is none.
const Orden *buscarOrden(const QStringList &palabras);

/// How many words name a command.
qsizetype numeroPalabras(const Orden &orden);

/// Help on the command that `palabras` names; when they name none, on every command that begins
/// with them, or on all.
QString textoAyuda(const QStringList &palabras);
