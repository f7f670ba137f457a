#include "app/Version.h"

QString versionPrograma()
{
    return QStringLiteral(OSTREL_VERSION);
}

QString versionCompleta()
{
    return versionPrograma() + u".0"_qs;
}
