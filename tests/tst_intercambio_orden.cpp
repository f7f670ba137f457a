#include "support/LineasPrueba.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

/// Import and export by the command line, as a user runs it in a terminal.
class TestIntercambioOrden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_carpeta.emplace();
        QVERIFY(QDir(m_carpeta->path()).mkpath(u"otra"_s));
    }

    /// Out of one database, into an empty one, and out again: the same bytes.
    void idaYVuelta()
    {
        QByteArray todas;
        for (int numero = 1; numero <= 50; ++numero) {
            QByteArray linea
                = lineas::linea(numero, QByteArray("\xC1\xD1\xC7 ") + char('A' + numero % 26));
            if (numero % 3 == 0)
                linea.replace(130, 9, "         "); // no telephone
            if (numero % 5 == 0)
                linea.replace(95, 10, "0101005000"); // another province
            todas = linea + "\r\n" + todas;
        }
        escribir("uno.txt", todas);
        hecho({u"importar"_s, ruta("uno.txt")},
              "Sus datos han sido importados correctamente\n"
              "Importados: 50. Sustituidos: 0. Ignorados: 0. Incorrectos: 0.\n");
        hecho({u"exportar"_s, ruta("dos.txt")}, "Declarantes exportados: 50.\n");
        hecho({u"importar"_s, ruta("dos.txt"), u"--carpeta"_s, ruta("otra")},
              "Sus datos han sido importados correctamente\n"
              "Importados: 50. Sustituidos: 0. Ignorados: 0. Incorrectos: 0.\n");
        const QByteArray segunda = leer("dos.txt");
        QCOMPARE(segunda.size(), todas.size());
        QVERIFY(segunda.startsWith(lineas::dni(1).toLatin1()));
        hecho({u"exportar"_s, u"-"_s, u"--carpeta"_s, ruta("otra")}, segunda);
        hecho({u"exportar"_s, u"-"_s, u"--dni"_s, lineas::dni(7), u"--dni"_s, lineas::dni(2)},
              segunda.mid(6 * 155, 155) + segunda.mid(155, 155));
    }

    void existentes()
    {
        escribir("uno.txt", lineas::linea(1, "A") + '\n' + lineas::linea(1, "B"));
        hecho({u"importar"_s, ruta("uno.txt")},
              "Sus datos han sido importados correctamente\n"
              "Importados: 1. Sustituidos: 0. Ignorados: 1. Incorrectos: 0.\n");
        hecho({u"importar"_s, ruta("uno.txt"), u"--automatico"_s},
              "Sus datos han sido importados correctamente\n"
              "Importados: 0. Sustituidos: 2. Ignorados: 0. Incorrectos: 0.\n");
        hecho({u"exportar"_s, u"-"_s}, lineas::linea(1, "B") + "\r\n");
    }

    void incorrectas()
    {
        escribir("uno.txt", "corta\n" + lineas::linea(1));
        const Salida salida = ostrel({u"importar"_s, ruta("uno.txt")});
        QCOMPARE(salida.codigo, 1);
        QCOMPARE(salida.texto, QByteArray());
        QCOMPARE(QString::fromUtf8(salida.error),
                 u"Hay 1 declarante erroneo\n"
                 "Importados: 1. Sustituidos: 0. Ignorados: 0. Incorrectos: 1.\n"
                 "Consulte el fichero para  visualizar los errores de importación : %1\n"_s.arg(
                     ruta("Tablas/Errores.txt")));
        QCOMPARE(leer("Tablas/Errores.txt"),
                 "Linea 1: No se han importado todos los datos\r\n" + lineas::formato());
    }

    void rechazadas()
    {
        escribir("vacio.txt", "");
        escribir("uno.txt", lineas::linea(1));
        hecho({u"importar"_s, ruta("uno.txt")}, {});
        rechazada({u"importar"_s, ruta("vacio.txt")}, "está vacío");
        rechazada({u"importar"_s, ruta("no.txt")}, "No existe el fichero que se desea importar");
        rechazada({u"importar"_s, ruta("otra")}, "es una carpeta o un dispositivo");
        rechazada({u"importar"_s, ruta("Tablas/OstrMod.mdb")}, "del propio programa");
        rechazada({u"exportar"_s, ruta("Tablas/OstrMod.mdb")}, "del propio programa");
        rechazada({u"exportar"_s, ruta("otra")}, "es una carpeta o un dispositivo");
        rechazada({u"exportar"_s, ruta("no/hay.txt")}, "No se ha podido escribir el fichero");
        rechazada({u"exportar"_s, ruta("x.txt"), u"--dni"_s, u"1"_s},
                  "No existe ningún declarante con el DNI-CIF 1.");
        QVERIFY(!QFileInfo::exists(ruta("x.txt")));
        QCOMPARE(ostrel({u"importar"_s}).codigo, 2);
        hecho({u"exportar"_s, u"-"_s}, lineas::linea(1) + "\r\n");
    }

    /// Whenever it is killed, what is stored are the first lines, and nothing is broken.
    void matada()
    {
        const QByteArray todas = lineas::fichero(1, 40000);
        escribir("uno.txt", todas);
        ostrel({u"listar"_s, u"declarantes"_s});
        const qint64 vacia = QFileInfo(ruta("Tablas/OstrMod.mdb")).size();
        for (const int transacciones : {1, 3}) {
            QProcess proceso;
            proceso.start(QStringLiteral(OSTREL),
                          {u"importar"_s, ruta("uno.txt"), u"--carpeta"_s, m_carpeta->path()});
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(ruta("Tablas/OstrMod.mdb")).size()
                                         > vacia + transacciones * 700'000,
                                     60'000);
            proceso.kill();
            QVERIFY(proceso.waitForFinished());
            const Salida salida = ostrel({u"exportar"_s, u"-"_s});
            QCOMPARE(salida.codigo, 0);
            QCOMPARE(salida.texto.size() % (155 * 5000), 0);
            QVERIFY(todas.startsWith(salida.texto));
        }
        const Salida resto = ostrel({u"importar"_s, ruta("uno.txt")});
        QCOMPARE(resto.codigo, 0);
        QCOMPARE(ostrel({u"exportar"_s, u"-"_s}).texto, todas);
    }

private:
    struct Salida
    {
        int codigo;
        QByteArray texto;
        QByteArray error;
    };

    QString ruta(const char *relativa) const
    {
        return m_carpeta->filePath(QString::fromLatin1(relativa));
    }
    void escribir(const char *relativa, const QByteArray &contenido) const
    {
        lineas::escribir(ruta(relativa), contenido);
    }
    QByteArray leer(const char *relativa) const { return lineas::leer(ruta(relativa)); }

    Salida ostrel(QStringList argumentos) const
    {
        if (!argumentos.contains(u"--carpeta"_s))
            argumentos += {u"--carpeta"_s, m_carpeta->path()};
        QProcess proceso;
        proceso.start(QStringLiteral(OSTREL), argumentos);
        if (!proceso.waitForFinished() || proceso.exitStatus() != QProcess::NormalExit)
            return {-1, {}, proceso.errorString().toUtf8()};
        return {proceso.exitCode(), proceso.readAllStandardOutput(),
                proceso.readAllStandardError()};
    }

    /// Done, and says `texto` when that is given.
    void hecho(const QStringList &argumentos, const QByteArray &texto) const
    {
        const Salida salida = ostrel(argumentos);
        QCOMPARE(salida.error, QByteArray());
        QCOMPARE(salida.codigo, 0);
        if (!texto.isNull())
            QCOMPARE(salida.texto, texto);
    }

    void rechazada(const QStringList &argumentos, const char *motivo) const
    {
        const Salida salida = ostrel(argumentos);
        QVERIFY2(salida.error.contains(motivo), salida.error);
        QCOMPARE(salida.texto, QByteArray());
        QCOMPARE(salida.codigo, 1);
    }

    std::optional<QTemporaryDir> m_carpeta;
};

QTEST_GUILESS_MAIN(TestIntercambioOrden)
#include "tst_intercambio_orden.moc"
