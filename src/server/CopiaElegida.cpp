#include "server/CopiaElegida.h"

#include "server/Comprobacion.h"
#include "server/CopiasAnteriores.h"
#include "server/Danados.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/Statement.h>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

bool esLaMisma(const QString &una, const QString &otra)
{
    const auto identidadUna = identidad(una);
    return QFileInfo(una).canonicalFilePath() == QFileInfo(otra).canonicalFilePath()
        || (identidadUna == identidad(otra) && identidadUna != Identidad{});
}

void comprobarEntera(SQLite::Database &base, const QString &ruta)
{
    comprobarContenido(base, ruta, "PRAGMA integrity_check(1)");
    SQLite::Statement huerfanas(base, "PRAGMA foreign_key_check");
    if (huerfanas.executeStep())
        throw ErrorDatos(Fallo::Danada, ruta, u"rows without their parent"_s);
}

/// Runs `f`; what is wrong with our copy is told of the user's file, what the disk lacks to make it
/// of the database beside which it is made.
template <class F> void deEsteFichero(const QString &ruta, const QString &propia, F &&f)
{
    try {
        f();
    } catch (const ErrorDatos &error) {
        if (error.fallo() == Fallo::RegistroDanado)
            throw ErrorDatos(error.fallo(),
                             error.objeto() + u" ("_s + QDir::toNativeSeparators(ruta) + u')');
        const bool delDisco = error.fallo() == Fallo::SinEspacio
            || error.fallo() == Fallo::SoloLectura || error.fallo() == Fallo::LecturaEscritura;
        throw ErrorDatos(error.fallo(), delDisco ? propia : ruta, QString::fromUtf8(error.what()));
    }
}

} // namespace

ResumenBase resumir(SQLite::Database &base, const QString &ruta)
{
    ResumenBase resumen{ruta, QFileInfo(ruta).lastModified()};
    try {
        resumen.declarantes = base.execAndGet("SELECT count(*) FROM DECLARANTES").getInt();
        resumen.declaraciones = base.execAndGet("SELECT count(*) FROM DECLARACIONES").getInt();
    } catch (const SQLite::Exception &error) {
        throw traducir(error, ruta);
    }
    return resumen;
}

CopiaElegida::CopiaElegida(const QString &ruta, const QString &propia)
    : m_fichero(propia + u".elegida"_s)
{
    const qint32 esquema = comprobarCabecera(ruta, FormatoDatos, Version::ActualOMenor);
    if (esLaMisma(ruta, propia))
        throw ErrorDatos(Fallo::EsElPropio, ruta);
    deEsteFichero(ruta, propia, [&] {
        copiarBytes(ruta, m_fichero.ruta());
        QFile::setPermissions(m_fichero.ruta(), QFile::ReadOwner | QFile::WriteOwner);
        m_base = abrirComprobada(m_fichero.ruta(), FormatoDatos, Version::ActualOMenor);
        comprobarEntera(*m_base, ruta);
        if (esquema == FormatoDatos.esquema)
            comprobarFilas(*m_base, ruta);
        m_resumen = resumir(*m_base, m_fichero.ruta());
    });
    m_resumen.ruta = ruta;
    m_resumen.fecha = QFileInfo(ruta).lastModified();
}

CopiaElegida::~CopiaElegida()
{
    m_base.reset();
    QFile::remove(m_fichero.ruta() + u"-journal"_s);
}

} // namespace servidor
