#pragma once

#include "core/CEntrada.h"
#include "core/Rutas.h"
#include "core/Servicios.h"
#include "core/Sesion.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;

/// A fresh program folder with the real data service, fresh records and a session begun in it.
class Entorno
{
public:
    /// Begins the session in `idioma` ("C" or "E"); empty: as on the first start, none chosen.
    explicit Entorno(const QString &idioma = u"C"_s);

    QString ruta(const QString &relativa) const { return m_carpeta.filePath(relativa); }
    const InicioSesion &inicio() const { return m_inicio; }

    /// Stores a valid declarant of the home province; its key.
    static qint32 altaDeclarante(const QString &dni = u"12345678Z"_s,
                                 const QString &nombre = u"SEGUROS UNO"_s);
    /// Stores a return whose figures are all empty, and its header in cDecResumen; its key.
    static qint32 altaDeclaracion(qint32 csco, qint16 ejercicio, quint8 periodo,
                                  const QString &modelo = u"430"_s);

    /// Switches the session to Basque and tells the screen so.
    static void pasarAEuskera(QObject &pantalla);

private:
    QTemporaryDir m_carpeta;
    InicioSesion m_inicio;
};

/// A whole record in one text, "a|b|c".
inline QString unidos(const QVariantList &valores)
{
    QStringList textos;
    for (const QVariant &valor : valores)
        textos += valor.toString();
    return textos.join(u'|');
}

/// While it lives, the session's model database is nowhere to be found.
class ModeloPerdido
{
public:
    ModeloPerdido();
    ~ModeloPerdido() { fijarRutas(m_buenas); }
    ModeloPerdido(const ModeloPerdido &) = delete;
    ModeloPerdido &operator=(const ModeloPerdido &) = delete;

private:
    Rutas m_buenas = rutas();
};
