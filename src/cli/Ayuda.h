#pragma once

#include <QStringList>

/// Help on the command that `palabras` names; when they name none, on every command that begins
/// with them, or on all.
QString textoAyuda(const QStringList &palabras);
