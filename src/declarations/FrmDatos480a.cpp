#include "declarations/FrmDatos480a.h"

#include "declarations/cDatos480.h"

using namespace Qt::StringLiterals;

FrmDatos480a::FrmDatos480a(QWidget *padre)
    : PaginaClases(u"FrmDatos480a"_s, Msj::Titulo480a, 1, Pantalla::Ninguna, Pantalla::Datos480b,
                   padre)
{
    auto &r = registro();
    if (r.ENTRADA() == Entrada::Abrir && r.MODO() == Modo::Consulta) {
        r.CargarDeclaracion(r.CSDE());
        r.MODIFICADO(false);
    }
    // coming back from the second page must not load again over what was typed
    r.ENTRADA(QString());
    Anadir_captions();
    PresentaDatos();
}
