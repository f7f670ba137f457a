#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

/// The answer of `direccion` (http or https, through the system's proxy settings), events being let
/// through meanwhile. Nothing unless it has come whole and without an error within `limite`, after
/// at most three redirections, each answer with its headers in at most 64 KB.
std::optional<QByteArray> descargar(const QString &direccion, std::chrono::milliseconds limite);
