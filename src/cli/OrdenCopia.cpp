#include "cli/Orden.h"
#include "core/Servicios.h"
#include "core/Sesion.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

static Resultado copia(const Argumentos &)
{
    servicioCopia(false)->CrearBackup();
    const QFileInfo hecha(rutas().programa + u"/backups/OstrMod_bak.mdb"_s);
    const QDateTime momento = hecha.lastModified();
    const QString fecha = unico::la<cFecha>().LongToString(momento.toString(u"yyyyMMdd"_s).toInt());
    return hecho(msj(Msj::CopiaHecha, QDir::toNativeSeparators(hecha.filePath()),
                     QString::number(hecha.size()), fecha + momento.toString(u" HH:mm"_s)));
}

static Resultado restaurar(const Argumentos &argumentos)
{
    const auto servicio = servicioCopia(true);
    QString fichero = rutas().programa + u"/backups/OstrMod_bak.mdb"_s;
    if (!argumentos.argumento.isEmpty()) {
        fichero = QFileInfo(argumentos.argumento).absoluteFilePath();
        servicio->ArchivoOrigen(fichero);
    }
    servicio->CrearRestore();
    QString texto = msj(Msj::RestauracionHecha, QDir::toNativeSeparators(fichero));
    if (!servicio->DatosAnteriores().isEmpty())
        texto += u'\n'
            + msj(Msj::DatosAnterioresGuardados,
                  QDir::toNativeSeparators(servicio->DatosAnteriores()));
    const InicioSesion inicio = iniciarSesion(); // an older copy is brought up to date
    if (!inicio.fallos.isEmpty())
        return rechazado(texto + u'\n' + inicio.textos().join(u'\n'));
    return hecho(texto);
}

extern constinit const Orden OrdenCopia = {
    u"copia", Msj::CliAyudaCopia, {}, {}, Msj::NoSePudoHacer, copia,
};

extern constinit const Orden OrdenRestaurar = {
    u"restaurar", Msj::CliAyudaRestaurar,   u"[FICHERO]", {}, Msj::NoSePudoHacer,
    restaurar,    Orden::DatosAunqueFallen,
};
