#include "core/Servicios.h"

using namespace Qt::StringLiterals;

std::unique_ptr<SvrKtComunLib::cSaveAsRestore> servicioCopia(bool restaurar, quintptr ventana)
{
    const QString base = u"OstrMod.mdb"_s;
    const QString copia = u"OstrMod_bak.mdb"_s;
    const QString copias = rutas().programa + u"/backups/"_s;
    auto servicio = servicio::crear<SvrKtComunLib::cSaveAsRestore>();
    servicio->ArchivoOrigen(restaurar ? copia : base);
    servicio->ArchivoDestino(restaurar ? base : copia);
    servicio->RutaOrigen(restaurar ? copias : rutas().tablas);
    servicio->RutaDestino(restaurar ? rutas().tablas : copias);
    servicio->Filtro(u"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb"_s);
    servicio->Idioma(desplazamientoIdioma());
    servicio->Parent(ventana);
    servicio->BDLectura(rutas().lectura);
    servicio->BDTabla(u"T08_GENERAL"_s);
    servicio->BDCampo(u"T08_BACKUP_TVC"_s);
    return servicio;
}
