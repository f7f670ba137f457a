#include "dataservice/ErrorDatos.h"

#include <cerrno>

Fallo falloDeSistema(int codigo)
{
    switch (codigo) {
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return Fallo::SinEspacio;
    case EACCES:
    case EPERM:
    case EROFS:
        return Fallo::SoloLectura;
    case ENOENT:
    case ENOTDIR:
        return Fallo::NoExiste;
    default:
        return Fallo::LecturaEscritura;
    }
}
