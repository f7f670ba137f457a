#pragma once

#include <QDir>
#include <QStandardPaths>

/// Where exchange files are looked for and offered: the user's documents.
inline QString carpetaPropuesta()
{
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documentos).exists() ? documentos : QDir::homePath();
}
