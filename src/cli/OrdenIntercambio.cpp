#include "cli/Orden.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "exchange/Exportacion.h"
#include "exchange/Importacion.h"
#include "exchange/cExportar.h"

#include <QDir>

static QString textoCuenta(const Importacion::Cuenta &cuenta)
{
    return msj(Msj::CliImportacion, QString::number(cuenta.importados),
               QString::number(cuenta.sustituidos), QString::number(cuenta.ignorados),
               QString::number(cuenta.incorrectos));
}

static Resultado importar(const Argumentos &argumentos)
{
    const QString fichero = argumentos.argumento;
    if (const QString motivo = motivoNoImportable(fichero); !motivo.isEmpty())
        return rechazado(motivo);
    const bool automatico = argumentos.tiene(u"automatico");
    Importacion importacion(fichero, automatico ? Existentes::Sustituir : Existentes::Conservar);
    QString fallo;
    try {
        importacion.ejecutar();
    } catch (const std::exception &error) {
        fallo = msj(Msj::ImportacionFallida, textoFallo(error)) + u'\n';
    }
    const auto &cuenta = importacion.cuenta();
    if (!fallo.isEmpty())
        return rechazado(fallo + textoCuenta(cuenta));
    if (cuenta.incorrectos == 0)
        return hecho(mensajeFinal(cuenta) + u'\n' + textoCuenta(cuenta));
    return rechazado(mensajeFinal(cuenta) + u'\n' + textoCuenta(cuenta) + u'\n'
                     + msj(Msj::ConsulteFicheroErrores) + u' '
                     + QDir::toNativeSeparators(FicheroErrores::ruta()));
}

/// The given declarants, all of them there, in the order given.
static QString buscar(const QStringList &dnis, QList<qint32> &claves)
{
    for (const QString &dni : dnis) {
        claves += unico::la<cDecDatos>().ObtenerCodigoDeclarante(dni.trimmed().toUpper());
        if (claves.last() == 0)
            return msj(Msj::CliDeclaranteNoExiste, dni);
    }
    return {};
}

static Resultado exportarOrden(const Argumentos &argumentos)
{
    const QString destino = argumentos.argumento;
    QList<qint32> claves;
    for (const QString &motivo :
         {motivoNoExportable(destino), buscar(argumentos.valores(u"dni"), claves)})
        if (!motivo.isEmpty())
            return rechazado(motivo);
    const auto recorrer = [&](const Visitante &visitar) {
        if (!argumentos.tiene(u"dni"))
            servicioDeclarante()->RecorrerExportar(cExportar::PorDni, visitar);
        for (qint32 clave : std::as_const(claves)) {
            Registro registro;
            servicioDeclarante()->CargarDeclarante(clave, registro);
            if (!visitar(registro))
                return;
        }
    };
    const Exportado exportado = exportar(destino, recorrer, [](qint64) { return true; });
    const QString texto = msj(Msj::Exportados, QString::number(exportado.lineas));
    if (!exportado.motivo.isEmpty())
        return rechazado(msj(Msj::ErrorEscribirFichero, destino, exportado.motivo) + u'\n' + texto);
    return hecho(destino == u"-" ? QString() : texto);
}

static constexpr Opcion OpcionesImportar[] = {
    {u"automatico", {}, Msj::AyudaAutomatico},
};

static constexpr Opcion OpcionesExportar[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Repetible},
};

extern constinit const Orden OrdenImportar = {
    u"importar", Msj::AyudaImportar, u"FICHERO", OpcionesImportar, Msj::NoSePudoHacer, importar,
};

extern constinit const Orden OrdenExportar = {
    u"exportar",      Msj::AyudaExportar, u"FICHERO",
    OpcionesExportar, Msj::NoSePudoHacer, exportarOrden,
};
