#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// What the version service publishes, and what may be done with it.
struct VersionPublicada
{
    QStringList partes; ///< three
    QString direccion; ///< of the download page, as published
    QString descripcion;
};

/// Reads the answer of the version service; nothing when a key is missing or the version does not
/// begin with three decimal parts.
std::optional<VersionPublicada> leerVersion(const QByteArray &respuesta);

/// Whether two versions differ in one of their three parts, compared as trimmed text: an older one
/// differs too, and so does "03" from "3".
bool versionesDistintas(const QStringList &una, const QStringList &otra);

/// The last part of an address: the file that it leads to.
QString ficheroDe(const QString &direccion);

/// Whether an address may be opened: absolute, http or https.
bool direccionSegura(const QString &direccion);

/// A page that, once loaded, posts an empty form to `direccion`. What could end the attribute that
/// holds the address is percent-encoded.
QByteArray paginaTemporal(const QString &direccion);
