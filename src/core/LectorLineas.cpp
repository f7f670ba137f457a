#include "core/LectorLineas.h"

#include "core/Rutas.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

static constexpr qsizetype Bloque = 65536;

QString motivoNoLegible(const QString &ruta)
{
    const QFileInfo fichero(ruta);
    const QString nombre = QDir::toNativeSeparators(ruta);
    if (!fichero.exists())
        return msj(Msj::NoExisteFicheroImportar);
    if (QString motivo = motivoRutaRechazada(ruta); !motivo.isEmpty())
        return motivo;
    if (!QFile(ruta).open(QIODevice::ReadOnly))
        return msj(Msj::FicheroIlegible, nombre);
    return fichero.size() == 0 ? msj(Msj::FicheroVacio, nombre) : QString();
}

LectorLineas::LectorLineas(QIODevice &fichero, qsizetype ancho)
    : m_fichero(fichero)
    , m_ancho(ancho)
{
    m_linea.reserve(ancho);
}

bool LectorLineas::llenar()
{
    m_bloque.resize(Bloque);
    const qint64 leidos = m_fichero.read(m_bloque.data(), Bloque);
    if (leidos < 0) {
        const auto *fichero = qobject_cast<QFileDevice *>(&m_fichero);
        throw ErrorDatos(Fallo::LecturaEscritura, fichero ? fichero->fileName() : QString(),
                         m_fichero.errorString());
    }
    m_bloque.truncate(leidos);
    m_lugar = 0;
    return leidos > 0;
}

/// Takes what there is of the line in the block; true when its end was there.
bool LectorLineas::tomarHastaFin()
{
    const QByteArrayView resto = QByteArrayView(m_bloque).sliced(m_lugar);
    const qsizetype lf = resto.indexOf('\n');
    const qsizetype cr = resto.first(lf < 0 ? resto.size() : lf).indexOf('\r');
    const bool hayFin = lf >= 0 || cr >= 0;
    const qsizetype fin = cr >= 0 ? cr : hayFin ? lf : resto.size();
    m_linea += resto.first(std::min(fin, m_ancho - m_linea.size()));
    m_trasCr = cr >= 0;
    m_lugar += fin + (hayFin ? 1 : 0);
    return hayFin;
}

bool LectorLineas::siguiente()
{
    m_linea.truncate(0);
    bool algo = false;
    while (m_lugar < m_bloque.size() || llenar()) {
        if (std::exchange(m_trasCr, false) && m_bloque.at(m_lugar) == '\n') {
            ++m_lugar;
            continue;
        }
        algo = true;
        if (tomarHastaFin())
            break;
    }
    m_numero += algo ? 1 : 0;
    return algo;
}
