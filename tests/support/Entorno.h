#pragma once

#include "core/Rutas.h"
#include "core/Sesion.h"
#include "core/Unico.h"

#include <QTemporaryDir>

/// A fresh program folder with the real data service, fresh records and a session begun in it.
class Entorno
{
public:
    /// Begins the session in `idioma` ("C" or "E"); empty: as on the first start, none chosen.
    explicit Entorno(const QString &idioma = QStringLiteral("C"));

    QString ruta(const QString &relativa) const { return m_carpeta.filePath(relativa); }
    const InicioSesion &inicio() const { return m_inicio; }

    /// Stores a valid declarant of the home province; its key.
    static qint32 altaDeclarante(const QString &dni = QStringLiteral("12345678Z"),
                                 const QString &nombre = QStringLiteral("SEGUROS UNO"));
    /// Stores a return whose figures are all empty, and its header in cDecResumen; its key.
    static qint32 altaDeclaracion(qint32 csco, qint16 ejercicio, quint8 periodo,
                                  const QString &modelo = QStringLiteral("430"));

    /// Switches the session to Basque and tells the screen so.
    static void pasarAEuskera(QObject &pantalla);

private:
    QTemporaryDir m_carpeta;
    InicioSesion m_inicio;
};

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
