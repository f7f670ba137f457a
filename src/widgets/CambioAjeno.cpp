#include "widgets/CambioAjeno.h"

#include "core/Textos.h"
#include "widgets/Mensajes.h"
#include "widgets/PantallaBase.h"

Decision consultarGuardado(PantallaBase *pantalla, EstadoCarga estado, const QString &nombre)
{
    const QString titulo = pantalla->windowTitle();
    if (estado == EstadoCarga::Igual)
        return Decision::Guardar;
    if (estado == EstadoCarga::Eliminado) {
        mensajes::aviso(pantalla, titulo, msj(Msj::EliminadoEnOtraCopia, nombre));
        return Decision::Seguir;
    }
    switch (mensajes::sustituir(pantalla, titulo, msj(Msj::PreguntaCambioAjeno, nombre))) {
    case mensajes::Sustituir::Si:
        return Decision::Guardar;
    case mensajes::Sustituir::No:
        pantalla->decir(msj(Msj::ConservadoLoGuardado, nombre));
        return Decision::Conservar;
    case mensajes::Sustituir::Cancelar:
        break;
    }
    return Decision::Seguir;
}
