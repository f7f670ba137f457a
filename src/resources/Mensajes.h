#pragma once

#include <QList>
#include <QString>

#include <Msj.h>

/// One text of the table in both languages.
struct Mensaje
{
    int numero = 0; ///< Castilian number; the Basque one is this plus 10000
    QString nombre; ///< name of the enumerator
    QString castellano;
    QString euskera;
};

/// Every text of both files, by ascending number.
const QList<Mensaje> &mensajes();

/// The text stored under `numero`, or `numero` + 10000 for Basque; empty when there is none.
QString mensajeNumero(int numero);
