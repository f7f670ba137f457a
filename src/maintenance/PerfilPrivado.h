#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A key of a settings file of the platform's private-profile form: names without regard to letter
/// case, the first of several counts, blanks and one pair of quotes around a value are dropped,
/// commas and semicolons belong to it. Windows-1252, or UTF-8 after its mark. Nothing when section
/// or key are not there.
std::optional<QString> valorPerfil(const QByteArray &contenido, const QString &seccion,
                                   const QString &clave);
