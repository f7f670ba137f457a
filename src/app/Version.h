#pragma once

#include <QString>

/// The program's version: "1.0.0".
QString versionPrograma();
/// The same in four parts, for the update check: "1.0.0.0".
QString versionCompleta();
