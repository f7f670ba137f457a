#include "cli/Tabla.h"

#include "core/Csv.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

QString Tabla::texto() const
{
    QList<QStringList> todas(1);
    for (const Titulo &titulo : titulos)
        todas.first() += titulo.texto;
    todas += filas;

    QList<qsizetype> anchos(titulos.size());
    for (const QStringList &celdas : std::as_const(todas))
        for (qsizetype i = 0; i < anchos.size(); ++i)
            anchos[i] = std::max(anchos[i], celdas[i].size());

    QStringList lineas;
    for (QStringList &celdas : todas) {
        for (qsizetype i = 0; i < anchos.size(); ++i)
            celdas[i] = titulos[i].numerica ? celdas[i].rightJustified(anchos[i])
                                            : celdas[i].leftJustified(anchos[i]);
        QString linea = celdas.join(u"  "_s);
        while (linea.endsWith(u' '))
            linea.chop(1);
        lineas += linea;
    }
    return lineas.join(u'\n');
}

QString textoJson(const QJsonArray &lista)
{
    return QString::fromUtf8(QJsonDocument(lista).toJson()).trimmed();
}

QString Tabla::csv() const
{
    QStringList cabecera;
    for (const Titulo &titulo : titulos)
        cabecera += titulo.texto;
    QByteArray lineas = csv::linea(cabecera);
    for (const QStringList &fila : filas)
        lineas += csv::linea(fila);
    return QString::fromUtf8(lineas).chopped(2); // the end of the last line is added by who prints
}
