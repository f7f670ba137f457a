#include "declarations/FrmDatos480b.h"

using namespace Qt::StringLiterals;

FrmDatos480b::FrmDatos480b(QWidget *padre)
    : PaginaClases(u"FrmDatos480b"_s, Msj::Titulo480b, 2, Pantalla::Datos480a, Pantalla::Datos480c,
                   padre)
{
    Anadir_captions();
    PresentaDatos();
}
