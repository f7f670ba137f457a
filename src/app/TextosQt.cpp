#include "app/TextosQt.h"

#include "core/Textos.h"

#include <QFile>

using namespace Qt::StringLiterals;

TextosQt::TextosQt()
{
    QFile fichero(u":/textos/textos_qt.txt"_s);
    if (!fichero.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &linea : fichero.readAll().replace("\\n", "\v").split('\n')) {
        const auto campos = QByteArray(linea).replace('\v', '\n').split('|');
        if (campos.size() == 3 && !linea.startsWith('#'))
            m_textos.insert(campos[0],
                            {QString::fromUtf8(campos[1]), QString::fromUtf8(campos[2])});
    }
}

QString TextosQt::translate(const char *, const char *texto, const char *, int) const
{
    const auto hallado = m_textos.constFind(QByteArray::fromRawData(texto, qstrlen(texto)));
    return hallado == m_textos.constEnd() ? QString() : elegir(hallado->first, hallado->second);
}
