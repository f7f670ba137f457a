#include "cli/Orden.h"
#include "core/Textos.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// A row of one of the script's tables; our own names need no quoting beyond this.
static QString fila(QStringView clave, QStringView valor)
{
    return u"    [\"%1\"]=\"%2\"\n"_s.arg(clave, valor);
}

static QString nombres(std::span<const Opcion> opciones)
{
    QStringList partes;
    for (const Opcion &opcion : opciones)
        partes
            += conGuiones(opcion.nombre) + (opcion.uso == Opcion::Repetible ? u"+"_s : QString());
    return partes.join(u' ');
}

/// What the options' values are.
static QString valores(const QString &orden, std::span<const Opcion> opciones)
{
    QString texto;
    for (const Opcion &opcion : opciones)
        if (!opcion.valor.isEmpty())
            texto += fila(orden + u' ' + conGuiones(opcion.nombre), opcion.valor);
    return texto;
}

static QString completadoBash()
{
    QString opciones;
    QString argumentos;
    QString tipos = valores({}, opcionesComunes());
    for (const Orden *orden : ordenes()) {
        opciones += fila(orden->palabras, nombres(orden->opciones));
        tipos += valores(orden->palabras.toString(), orden->opciones);
        if (!orden->argumento.isEmpty())
            argumentos += fila(orden->palabras, orden->argumento);
    }
    QFile funciones(u":/cli/completado.bash"_s);
    if (!funciones.open(QIODevice::ReadOnly))
        qFatal("the completion's functions are built in");
    return u"declare -gA _ostrel_opciones=(\n%1)\ndeclare -gA _ostrel_valor=(\n%2)\n"
           "declare -gA _ostrel_argumento=(\n%3)\n_ostrel_comunes=\"%4\"\n"_s.arg(
               opciones, tipos, argumentos, nombres(opcionesComunes()))
        + QString::fromUtf8(funciones.readAll()).trimmed();
}

static Resultado completado(const Argumentos &argumentos)
{
    if (argumentos.argumento != u"bash")
        return malUso(msj(Msj::CliSobra, argumentos.argumento));
    return hecho(u"# Completion of ostrel for bash, made by «ostrel completado bash».\n"_s
                 + completadoBash());
}

extern constinit const Orden OrdenCompletado = {
    u"completado", Msj::AyudaCompletado, u"bash", {}, Msj::NoSePudoHacer, completado, Orden::Nada,
};
