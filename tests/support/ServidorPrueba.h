#pragma once

#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrKtComunLib.h"
#include "dataservice/SvrOstr.h"
#include "server/Prueba.h"
#include "server/Servidor.h"

#include <QFile>
#include <QHash>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <SQLiteCpp/Database.h>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

/// The real data service on files of its own, and the records that its tests start from.
class ServidorPrueba
{
public:
    ServidorPrueba() { registrarServidor(); }

    QString carpeta() const { return m_carpeta.filePath(u"Tablas"_s); }
    QString datos() const { return carpeta() + u"/OstrMod.mdb"_s; }
    QString lectura() const { return carpeta() + u"/OstrLec.mdb"_s; }

    bool traspaso() const { return preparador()->Traspaso(); }
    void comprobar() const { preparador()->Comprobar(); }
    std::unique_ptr<SvrOstr::cDatosGeneral> generales(const QString &ruta) const
    {
        auto objeto = servicio::crear<SvrOstr::cDatosGeneral>();
        objeto->mdbname(ruta);
        return objeto;
    }
    std::unique_ptr<SvrOstr::cDeclarante> declarantes() const
    {
        auto objeto = servicio::crear<SvrOstr::cDeclarante>();
        objeto->mdbnameM(datos());
        objeto->mdbnameL(lectura());
        return objeto;
    }
    std::unique_ptr<SvrOstr::cDeclaracion> declaraciones() const
    {
        auto objeto = servicio::crear<SvrOstr::cDeclaracion>();
        objeto->mdbname(datos());
        return objeto;
    }
    /// Saves a new declarant; its key.
    qint32 alta(const QString &dni, const QString &nombre) const
    {
        declarantes()->GuardarDeclarante(registro(dni, nombre));
        return declarantes()->ObtenerCodigoDeclarante(dni);
    }

    static Registro registro(const QString &dni, const QString &nombre)
    {
        return {0,       dni,        nombre,    u"CL"_s,        u"MAYOR"_s,
                7,       QString(),  QString(), u"2"_s,         u"DCH"_s,
                u"20"_s, u"20123"_s, u"001"_s,  u"MUNICIPIO"_s, u"943123456"_s,
                9.0,     9.0};
    }
    static Registro datos430(qint32 CSCO, int ejercicio, int periodo, double cuota, qint32 CSDE = 0)
    {
        return {CSDE,     CSCO, ejercicio, 1,      periodo, u"430"_s, 1,     u"X"_s,
                123456.0, 8.0F, 9876.0,    -100.0, -8.0,    123356.0, 6.01F, cuota};
    }
    /// Box i of the record holds i + 1 cents; the rates are 8 and 6.
    static Registro datos480(qint32 CSCO, int ejercicio, qint32 CSDE = 0)
    {
        Registro datos{CSDE, CSCO, ejercicio, 2, 12, u"480"_s, 2};
        for (int i = 0; i < Reg480::Total; ++i)
            datos += static_cast<double>(i + 1);
        datos[int(RegGuardar::Figuras) + Reg480::C74_TI1] = 8.0F;
        datos[int(RegGuardar::Figuras) + Reg480::C77_TI2] = 6.0F;
        return datos;
    }

private:
    std::unique_ptr<SvrOstr::cTraspaso> preparador() const
    {
        auto objeto = servicio::crear<SvrOstr::cTraspaso>();
        objeto->mdbmod(datos());
        objeto->mdbPath(carpeta());
        return objeto;
    }

    QTemporaryDir m_carpeta;
};

/// The kind of ErrorDatos that `f` ends with; nothing when it ends well.
inline std::optional<Fallo> falloDe(const std::function<void()> &f)
{
    try {
        f();
        return {};
    } catch (const ErrorDatos &error) {
        return error.fallo();
    }
}

/// One column of the rows of a list.
inline QVariantList columna(const Filas &filas, qsizetype numero)
{
    QVariantList valores;
    for (const QVariant &fila : filas)
        valores += fila.toList().value(numero);
    return valores;
}

inline QByteArray bytes(const QString &ruta)
{
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
}

inline void escribir(const QString &ruta, const QByteArray &contenido)
{
    QFile fichero(ruta);
    QVERIFY(fichero.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(fichero.write(contenido), contenido.size());
}

/// Puts `cuantos` declarants into a database past the data service, those that are not there yet.
inline void llenar(const QString &ruta, int cuantos, const QString &prefijo = u"D"_s)
{
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE, 2000);
    servidor::registrarPrueba(base);
    base.exec("BEGIN");
    base.exec(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
              "INSERT OR IGNORE INTO DECLARANTES (DNI, NOMBRE, CLAVE, VIA, DOMICILIO, NUMERO, "
              "LETRA, ESCALERA, PISO, MANO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO) SELECT "
              "'%2' || i, 'N' || i, 'N' || i, 'CL', 'MAYOR', 1, '', '', '', '', 20, '20001', 1, "
              "'M', '' FROM n"_s.arg(cuantos)
                  .arg(prefijo)
                  .toStdString());
    base.exec("UPDATE DECLARANTES SET PRUEBA = " + servidor::probadaDeclarantes().valor()
              + " WHERE PRUEBA = 0; COMMIT");
}

/// A sound database file spoilt in the way called `caso`; another one, `otro`, in its place.
inline QByteArray estropeado(const QString &caso, const QByteArray &bueno, const QByteArray &otro)
{
    QByteArray azar(8192, 0);
    QRandomGenerator(7).generate(azar.begin(), azar.end());
    const QByteArray pagina(4096, 'z');
    const auto con = [&](int lugar, const char *numero) {
        return QByteArray(bueno).replace(lugar, 4, QByteArray(numero, 4));
    };
    const QHash<QString, QByteArray> malos{
        {u"empty"_s, {}},
        {u"truncated"_s, bueno.chopped(4096)},
        {u"short"_s, bueno.first(50)},
        {u"text"_s, QByteArray("this is no database\n").repeated(500)},
        {u"random"_s, azar},
        {u"damaged"_s, QByteArray(bueno).replace(4096, 4096, pagina)},
        {u"fourth page"_s, QByteArray(bueno).replace(3 * 4096, 4096, pagina)},
        {u"foreign"_s, con(68, "ABCD")},
        {u"unnamed"_s, con(68, "\0\0\0\0")},
        {u"newer"_s, con(60, "\0\0\3\1")}};
    return malos.value(caso, otro);
}
