#include "maintenance/PerfilPrivado.h"

#include "core/Caracteres.h"

#include <QStringList>

using namespace Qt::StringLiterals;

static QString decodificar(const QByteArray &contenido)
{
    static constexpr QByteArrayView marca("\xEF\xBB\xBF");
    if (contenido.startsWith(marca))
        return QString::fromUtf8(contenido.mid(marca.size()));
    QString texto;
    texto.reserve(contenido.size());
    for (const char byte : contenido) {
        const QChar c = windows1252::caracter(static_cast<uchar>(byte));
        texto += c.isNull() ? QChar(QChar::ReplacementCharacter) : c;
    }
    return texto;
}

static bool igual(QStringView uno, const QString &otro)
{
    return uno.trimmed().compare(otro, Qt::CaseInsensitive) == 0;
}

static QString sinComillas(const QString &valor)
{
    const bool comillas = valor.size() > 1 && valor.front() == valor.back()
        && (valor.front() == u'"' || valor.front() == u'\'');
    return comillas ? valor.mid(1, valor.size() - 2) : valor;
}

std::optional<QString> valorPerfil(const QByteArray &contenido, const QString &seccion,
                                   const QString &clave)
{
    bool dentro = false;
    for (const QString &linea : decodificar(contenido).replace(u'\r', u'\n').split(u'\n')) {
        const QString texto = linea.trimmed();
        if (texto.startsWith(u'[')) {
            if (dentro)
                return {};
            dentro = igual(QStringView(texto).mid(1, texto.indexOf(u']') - 1), seccion);
            continue;
        }
        const auto separador = texto.indexOf(u'=');
        if (dentro && !texto.startsWith(u';') && separador > 0
            && igual(QStringView(texto).first(separador), clave))
            return sinComillas(texto.mid(separador + 1).trimmed());
    }
    return {};
}
