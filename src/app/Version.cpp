#include "app/Version.h"

using namespace Qt::StringLiterals;

QString versionPrograma()
{
    return QStringLiteral(OSTREL_VERSION);
}

QString versionCompleta()
{
    return versionPrograma() + u".0"_s;
}
