#include "printing/cImprimirVarias.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

void cImprimirVarias::Pedir(QList<FilaImprimir> filas)
{
    m_filas = std::move(filas);
    m_pedidas = true;
}

qsizetype cImprimirVarias::cuantas(FilaImprimir::Estado estado) const
{
    return std::ranges::count(m_filas, estado, &FilaImprimir::estado);
}

QStringList cImprimirVarias::copias(const FilaImprimir &fila) const
{
    cImOf una = m_peticion;
    una.MODELO(fila.cabecera.modelo);
    return copiasPedidas(una);
}

QString cImprimirVarias::nombreFichero(const FilaImprimir &fila) const
{
    const auto &c = fila.cabecera;
    return nombrePdf(c.modelo, c.ejercicio, c.periodo, fila.dni, copias(fila));
}

QString cImprimirVarias::nombreConjunto() const
{
    QStringList comunes;
    for (bool primera = true; const FilaImprimir &fila : m_filas) {
        const QStringList partes = nombreFichero(fila).split(u'_');
        if (std::exchange(primera, false))
            comunes = partes;
        for (qsizetype i = 0; i < comunes.size(); ++i)
            if (comunes[i] != partes.value(i))
                comunes[i].clear();
    }
    comunes.removeAll(QString());
    return comunes.join(u'_');
}

qsizetype cImprimirVarias::MirarExistentes(const QString &carpeta)
{
    const QDir destino(carpeta);
    for (FilaImprimir &fila : m_filas)
        fila.existia = QFileInfo::exists(destino.filePath(nombreFichero(fila)));
    return std::ranges::count(m_filas, true, &FilaImprimir::existia);
}

void cImprimirVarias::Empezar()
{
    for (FilaImprimir &fila : m_filas) {
        fila.estado = FilaImprimir::Pendiente;
        fila.fichero.clear();
        fila.motivo.clear();
    }
}
