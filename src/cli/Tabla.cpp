#include "cli/Tabla.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

static QString alinear(std::span<const Columna> columnas, const QList<qsizetype> &anchos,
                       const QStringList &celdas)
{
    QStringList partes;
    for (qsizetype i = 0; i < celdas.size(); ++i)
        partes += columnas[static_cast<size_t>(i)].numerica ? celdas[i].rightJustified(anchos[i])
                                                            : celdas[i].leftJustified(anchos[i]);
    QString linea = partes.join(u"  "_s);
    while (linea.endsWith(u' '))
        linea.chop(1);
    return linea;
}

QString textoTabla(std::span<const Columna> columnas, const Filas &filas)
{
    QList<QStringList> celdas(1);
    for (const Columna &columna : columnas)
        celdas.first() += columna.titulo;
    for (const QVariant &fila : filas) {
        QStringList &textos = celdas.emplaceBack();
        for (const Columna &columna : columnas)
            textos += columna.texto(fila.toList());
    }

    QList<qsizetype> anchos(celdas.first().size());
    for (const QStringList &textos : std::as_const(celdas))
        for (qsizetype i = 0; i < anchos.size(); ++i)
            anchos[i] = std::max(anchos[i], textos[i].size());

    QStringList lineas;
    for (const QStringList &textos : std::as_const(celdas))
        lineas += alinear(columnas, anchos, textos);
    return lineas.join(u'\n');
}

QString textoJson(std::span<const QStringView> nombres, const Filas &filas)
{
    QJsonArray lista;
    for (const QVariant &fila : filas) {
        const auto celdas = fila.toList();
        QJsonObject objeto;
        for (qsizetype i = 0; const QStringView nombre : nombres) {
            const QVariant &celda = celdas[i++];
            objeto.insert(nombre,
                          nombre == u"IMPORTE" ? QJsonValue(celda.toDouble() / 100)
                                               : QJsonValue::fromVariant(celda));
        }
        lista.append(objeto);
    }
    return QString::fromUtf8(QJsonDocument(lista).toJson()).trimmed();
}
