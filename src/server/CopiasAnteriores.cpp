#include "server/CopiasAnteriores.h"

#include "server/FicherosBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

std::filesystem::path camino(const QString &ruta)
{
    return ruta.toStdU16String();
}

QString anterior(const QString &ruta, int numero)
{
    const QFileInfo fichero(ruta);
    return fichero.dir().filePath(
        u"%1.%2.%3"_s.arg(fichero.completeBaseName()).arg(numero).arg(fichero.suffix()));
}

void copiarUno(const QString &origen, const QString &destino)
{
    constexpr qint64 trozo = 1 << 20;
    QFile de(origen);
    QFile a(destino);
    bool leido = de.open(QIODevice::ReadOnly);
    bool escrito = !leido || a.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    while (leido && escrito && !de.atEnd()) {
        const QByteArray bytes = de.read(trozo);
        leido = !bytes.isEmpty();
        escrito = a.write(bytes) == bytes.size();
    }
    const int sistema = errno;
    if (!leido)
        throw ErrorDatos(Fallo::Lectura, origen, de.errorString());
    if (!escrito)
        throw ErrorDatos(falloDeSistema(sistema), destino, a.errorString());
}

/// Earlier ones up to the first number that is free give way; those behind a gap stay.
int primeraLibre(const QString &ruta, int cuantas)
{
    int numero = 1;
    while (numero < cuantas && QFile::exists(anterior(ruta, numero)))
        ++numero;
    return numero;
}

} // namespace

void copiarBytes(const QString &origen, const QString &destino)
{
    copiarUno(origen, destino);
    if (QFile::exists(origen + u"-journal"_s))
        copiarUno(origen + u"-journal"_s, destino + u"-journal"_s);
}

void conservarComo(const QString &ruta, const QString &nombre)
{
    std::error_code error;
    QFile::remove(nombre);
    std::filesystem::create_hard_link(camino(ruta), camino(nombre), error);
    if (!error)
        return;
    // not every file system has second names
    Provisional provisional(nombre);
    copiarUno(ruta, provisional.ruta());
    provisional.colocar();
}

void conservarAnterior(const QString &ruta, int cuantas)
{
    if (cuantas < 1 || !QFile::exists(ruta))
        return;
    for (int numero = primeraLibre(ruta, cuantas); numero > 1; --numero)
        renombrar(anterior(ruta, numero - 1), anterior(ruta, numero));
    conservarComo(ruta, anterior(ruta, 1));
}

QString rutaDelDia(const QString &carpeta, const QString &archivo, QDate dia)
{
    const QFileInfo fichero(archivo);
    return QDir(carpeta).filePath(u"%1_auto_%2.%3"_s.arg(
        fichero.completeBaseName(), dia.toString(Qt::ISODate), fichero.suffix()));
}

void podarDelDia(const QString &carpeta, const QString &archivo, int cuantas)
{
    const QFileInfo fichero(archivo);
    const QString patron = fichero.completeBaseName() + u"_auto_[0-9]*."_s + fichero.suffix();
    QDir copias(carpeta);
    const QStringList nombres = copias.entryList({patron}, QDir::Files, QDir::Name);
    for (const QString &nombre : nombres.first(std::max<qsizetype>(nombres.size() - cuantas, 0)))
        copias.remove(nombre);
}

} // namespace servidor
