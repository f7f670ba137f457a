#pragma once

#include <QString>

#include <functional>

class TrabajoImpresion;
class cImprimirVarias;

/// Prints the returns of cImprimirVarias one after the other; what became of each stands in its
/// row. One that fails does not stop the others. The session's records are as before afterwards.
namespace impresionVarias {

/// Called before each with its number, from 1; false stops there.
using Seguir = std::function<bool(qint64)>;
/// Whether a file that is there is replaced: never, when it was there as the user was asked, or
/// always.
enum class SiExiste { Dejar, SustituirVistos, Sustituir };

/// A PDF each into a folder. Returns why it could not go on (no room on the disk), in the session's
/// language; empty when it came to the end or was stopped.
QString enCarpeta(cImprimirVarias &varias, const QString &carpeta, SiExiste siExiste,
                  const Seguir &seguir);
/// One PDF with all of them, written as it is drawn: the whole of it, or nothing. Returns why there
/// is none; empty also when it was stopped, or none of them could be drawn.
QString enFichero(cImprimirVarias &varias, const QString &ruta, const Seguir &seguir);
/// To a printer called `nombre`, which `enviar` hands each job to; false ends it there. Returns why
/// it could not go on.
QString enImpresora(cImprimirVarias &varias, const QString &nombre,
                    const std::function<bool(TrabajoImpresion &)> &enviar, const Seguir &seguir);

} // namespace impresionVarias
