#pragma once

#include "dataservice/Codigos.h"

#include <QList>
#include <QString>

#include <Msj.h>

/// One text of the table in both languages.
struct Mensaje
{
    int numero = 0;
    QString nombre; ///< name of the enumerator
    QString castellano;
    QString euskera;
};

/// Every text of both files, by ascending number.
const QList<Mensaje> &tablaMensajes();

/// The text number `numero`; empty when there is none.
QString textoMensaje(int numero, Idioma idioma);
