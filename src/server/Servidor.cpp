#include "server/Servidor.h"

#include "server/cDatosGeneral.h"
#include "server/cDeclaracion.h"
#include "server/cDeclarante.h"
#include "server/cMiscelaneos.h"
#include "server/cSaveAsRestore.h"
#include "server/cTraspaso.h"

namespace {

template <class T> void registrarClase()
{
    servicio::registrar(T::ID, [] { return std::make_unique<T>(); });
}

} // namespace

void registrarServidor(Dialogos *dialogos)
{
    Q_INIT_RESOURCE(lectura);
    registrarClase<servidor::cDatosGeneral>();
    registrarClase<servidor::cDeclarante>();
    registrarClase<servidor::cDeclaracion>();
    registrarClase<servidor::cTraspaso>();
    servicio::registrar(servidor::cSaveAsRestore::ID, [dialogos] {
        return std::make_unique<servidor::cSaveAsRestore>(dialogos);
    });
    servicio::registrar(servidor::cMiscelaneos::ID,
                        [dialogos] { return std::make_unique<servidor::cMiscelaneos>(dialogos); });
}
