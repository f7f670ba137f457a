#include "support/LineasPrueba.h"
#include "support/Ostrel.h"

#include <optional>

/// Import and export by the command line.
class TstIntercambioOrden : public QObject, Ostrel
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_carpeta.emplace();
        carpeta = m_carpeta->path();
        QVERIFY(QDir(carpeta).mkpath(u"otra"_s));
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
        decir({u"importar"_s, ruta("uno.txt")},
              "Sus datos han sido importados correctamente\n"
              "Importados: 50. Sustituidos: 0. Ignorados: 0. Incorrectos: 0.\n");
        decir({u"exportar"_s, ruta("dos.txt")}, "Declarantes exportados: 50.\n");
        decir({u"importar"_s, ruta("dos.txt"), u"--carpeta"_s, ruta("otra")},
              "Sus datos han sido importados correctamente\n"
              "Importados: 50. Sustituidos: 0. Ignorados: 0. Incorrectos: 0.\n");
        const QByteArray segunda = leer("dos.txt");
        QCOMPARE(segunda.size(), todas.size());
        QVERIFY(segunda.startsWith(lineas::dni(1).toLatin1()));
        decir({u"exportar"_s, u"-"_s, u"--carpeta"_s, ruta("otra")}, segunda);
        decir({u"exportar"_s, u"-"_s, u"--dni"_s, lineas::dni(7), u"--dni"_s, lineas::dni(2)},
              segunda.mid(6 * 155, 155) + segunda.mid(155, 155));
    }

    void existentes()
    {
        const QByteArray bien = "Sus datos han sido importados correctamente\nImportados: ";
        escribir("uno.txt", lineas::linea(1, "A") + '\n' + lineas::linea(1, "B"));
        decir({u"importar"_s, ruta("uno.txt")},
              bien + "1. Sustituidos: 0. Ignorados: 1. Incorrectos: 0.\n");
        decir({u"importar"_s, ruta("uno.txt"), u"--automatico"_s},
              bien + "0. Sustituidos: 2. Ignorados: 0. Incorrectos: 0.\n");
        decir({u"exportar"_s, u"-"_s}, lineas::linea(1, "B") + "\r\n");
    }

    void incorrectas()
    {
        escribir("uno.txt", "corta\n" + lineas::linea(1));
        rechazar({u"importar"_s, ruta("uno.txt")},
                 "Hay 1 declarante erroneo\n"
                 "Importados: 1. Sustituidos: 0. Ignorados: 0. Incorrectos: 1.\n"
                 "Consulte el fichero para  visualizar los errores de importación : "
                     + ruta("Tablas/Errores.txt").toUtf8() + '\n');
        QCOMPARE(leer("Tablas/Errores.txt"),
                 "Linea 1: No se han importado todos los datos\r\n" + lineas::formato());
    }

    void rechazadas()
    {
        escribir("vacio.txt", "");
        escribir("uno.txt", lineas::linea(1));
        decir({u"importar"_s, ruta("uno.txt")}, {});
        rechazar({u"importar"_s, ruta("vacio.txt")}, "está vacío");
        rechazar({u"importar"_s, ruta("no.txt")}, "No existe el fichero que se desea importar");
        rechazar({u"importar"_s, ruta("otra")}, "es una carpeta o un dispositivo");
        escribir("Tablas/Errores.txt", "a");
        for (const char *propio : {"Tablas/OstrMod.mdb", "Tablas/Errores.txt"})
            rechazar({u"importar"_s, ruta(propio)}, "del propio programa");
        rechazar({u"exportar"_s, ruta("Tablas/OstrMod.mdb")}, "del propio programa");
        rechazar({u"exportar"_s, ruta("otra")}, "es una carpeta o un dispositivo");
        rechazar({u"exportar"_s, ruta("no/hay.txt")}, "No se ha podido escribir el fichero");
        rechazar({u"exportar"_s, ruta("x.txt"), u"--dni"_s, u"1"_s},
                 "No existe ningún declarante con el DNI-CIF 1.");
        QVERIFY(!QFileInfo::exists(ruta("x.txt")));
        QCOMPARE(ostrel({u"importar"_s}).codigo, 2);
        decir({u"exportar"_s, u"-"_s}, lineas::linea(1) + "\r\n");
    }

private:
    QString ruta(const char *relativa) const { return carpeta + u'/' + QLatin1String(relativa); }
    void escribir(const char *relativa, const QByteArray &contenido) const
    {
        lineas::escribir(ruta(relativa), contenido);
    }
    QByteArray leer(const char *relativa) const { return lineas::leer(ruta(relativa)); }

    std::optional<QTemporaryDir> m_carpeta;
};

QTEST_MAIN(TstIntercambioOrden)
#include "tst_intercambio_orden.moc"
