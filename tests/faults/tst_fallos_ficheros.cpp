#include "faults/Averias.h"

#include <QRandomGenerator>

#include <sys/stat.h>

/// Files that are not what they should be: the database, a backup to restore, a file to import.
class TstFallosFicheros : public QObject, Averias
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reponer(pruebas().first());
        m_antes = estado();
        m_todo = leida();
        m_buena = lineas::leer(ruta("Tablas/OstrMod.mdb"));
        m_copia = lineas::leer(ruta("backups/OstrMod_bak.mdb"));
    }

    /// Cut off anywhere: never taken for whole.
    void cortadas()
    {
        const qsizetype paso = largo() ? 509 : 20'011;
        int veces = 0;
        for (qsizetype n = 0; n < m_buena.size(); n += paso, ++veces) {
            base(m_buena.first(n), false);
            restaurada(m_copia.first(std::min(n, m_copia.size() - 1)), false);
        }
        contar("files",
               u"%1 truncations of the database, %1 of a backup: all refused"_s.arg(veces));
    }

    /// One bit is another one: refused, told, or of no account.
    void bitsCambiados()
    {
        QRandomGenerator azar(largo() ? QRandomGenerator::global()->generate() : 7);
        const int veces = largo() ? 1000 : 40;
        int rechazadas = 0;
        for (int i = 0; i < veces; ++i) {
            const auto cambiada = [&](QByteArray bytes) {
                const auto lugar = azar.bounded(bytes.size());
                bytes[lugar] = char(bytes[lugar] ^ 1 << azar.bounded(8));
                return bytes;
            };
            rechazadas += base(cambiada(m_buena), true);
            rechazadas += restaurada(cambiada(m_copia), true);
        }
        contar(
            "files",
            u"%1 flipped bits: %2 refused or told, the others of no account"_s.arg(2 * veces).arg(
                rechazadas));
    }

    /// What else may stand in the place of a file, and what each command makes of it.
    void otrasCosas()
    {
        const QString modelo = ruta("Tablas/OstrMod.mdb"), fuera = ruta("otra.mdb");
        // through a link the database is used where it is, and a dangling one left alone
        QVERIFY(QFile::rename(modelo, fuera) && QFile::link(fuera, modelo));
        QCOMPARE(leida(), m_todo);
        hacer(declarar(u"4"_s));
        hacer({u"restaurar"_s});
        QCOMPARE(QFileInfo(modelo).symLinkTarget(), fuera);
        QCOMPARE(contenidoDe(fuera), contenidoDe(ruta("backups/OstrMod_bak.mdb")));
        QVERIFY(QFile::remove(fuera));
        for (const QStringList &orden : {declarar(u"5"_s), QStringList{u"restaurar"_s}})
            rechazar(orden, "OstrMod.mdb");
        QVERIFY(QFileInfo(modelo).isSymLink() && !QFile::exists(fuera));
        // what is to be imported is only ever read
        for (const QString &fichero : {modelo, ruta("backups"), ruta("no.txt"), ruta("fifo")}) {
            ::mkfifo(qPrintable(ruta("fifo")), 0600);
            rechazar({u"importar"_s, fichero}, "");
        }
    }

    /// Journals of other bases, and of none: the base is what it was, and a save goes on.
    void diariosAjenos()
    {
        QByteArray ajeno;
        const QString otra = ruta("otra.mdb");
        lineas::escribir(otra, m_copia);
        {
            SQLite::Database base(otra.toStdString(), SQLite::OPEN_READWRITE);
            base.exec("PRAGMA cache_size = 2; BEGIN; UPDATE DECLARANTES SET NOMBRE = 'OTRO', "
                      "DOMICILIO = hex(zeroblob(3000))");
            ajeno = lineas::leer(otra + u"-journal"_s);
            base.exec("ROLLBACK; PRAGMA journal_mode = WAL; UPDATE DECLARANTES SET NOMBRE = 'WAL'");
            for (const char *cual : {"-wal", "-shm"})
                lineas::escribir(ruta("ajeno") + QLatin1String(cual),
                                 lineas::leer(otra + QLatin1String(cual)));
        }
        const QByteArray wal = lineas::leer(ruta("ajeno-wal")),
                         shm = lineas::leer(ruta("ajeno-shm"));
        QVERIFY(ajeno.size() > 4096 && wal.size() > 4096);
        for (const auto &[sufijo, bytes] : {std::pair{"-journal", QByteArray()},
                                            {"-journal", ajeno},
                                            {"-journal", QByteArray(5000, 'z')},
                                            {"-wal", wal},
                                            {"-wal", QByteArray(5000, 'z')},
                                            {"-shm", shm}})
            for (const char *de :
                 {"Tablas/OstrMod.mdb", "backups/OstrMod_bak.mdb", "enlazada.mdb"}) {
                reponer(pruebas().first());
                if (qstrcmp(de, "enlazada.mdb") == 0)
                    QVERIFY(QFile::rename(ruta("Tablas/OstrMod.mdb"), ruta(de))
                            && QFile::link(ruta(de), ruta("Tablas/OstrMod.mdb")));
                lineas::escribir(ruta(de) + QLatin1String(sufijo), bytes);
                QCOMPARE(leida(), m_todo);
                hacer(declarar(u"3"_s));
                hacer({u"copia"_s});
                hacer({u"restaurar"_s});
                QVERIFY(leida() != m_todo);
                QCOMPARE(contenidoDe(ruta("Tablas/OstrMod.mdb")),
                         contenidoDe(ruta("backups/OstrMod_bak.mdb")));
                if (QTest::currentTestFailed())
                    qWarning("%s%s of %lld bytes", de, sufijo, qint64(bytes.size()));
            }
        contar("files", u"18 leftover journals, logs and indexes: all without effect"_s);
    }

private:
    /// All that a user sees of the stored data; empty where the program tells what is wrong.
    QByteArray leida() const
    {
        QByteArray todo;
        for (const QStringList &orden :
             {QStringList{u"listar"_s, u"declarantes"_s, u"--json"_s},
              QStringList{u"listar"_s, u"declaraciones"_s, u"--json"_s, u"--dni"_s, lineas::dni(1)},
              QStringList{u"exportar"_s, u"-"_s}}) {
            const Salida salida = ostrel(orden);
            if (salida.codigo != 0)
                [&] { QVERIFY2(salida.error.contains("«"), salida.error); }();
            if (salida.codigo != 0 || salida.texto.contains(": null")) // of a row that is damaged
                return {};
            todo += salida.texto;
        }
        return todo;
    }
    /// The database is `bytes`: refused and left as it is, or, where that may be, the same to the
    /// user.
    bool base(const QByteArray &bytes, bool puedeValer)
    {
        lineas::escribir(ruta("Tablas/OstrMod.mdb"), bytes);
        const QByteArray vista = leida();
        if (vista.isEmpty())
            [&] { QCOMPARE(lineas::leer(ruta("Tablas/OstrMod.mdb")), bytes); }();
        else
            [&] { QVERIFY2(puedeValer && vista == m_todo, "a changed value"); }();
        lineas::escribir(ruta("Tablas/OstrMod.mdb"), m_buena);
        return vista.isEmpty();
    }
    /// The same of a backup that is to be restored.
    bool restaurada(const QByteArray &bytes, bool puedeValer)
    {
        lineas::escribir(ruta("elegida.mdb"), bytes);
        const Salida salida = ostrel({u"restaurar"_s, ruta("elegida.mdb")});
        const QByteArray hay = contenidoDe(ruta("Tablas/OstrMod.mdb"));
        if (salida.codigo != 0)
            [&] { QCOMPARE(hay, m_antes.value(u"Tablas/OstrMod.mdb"_s)); }();
        else
            [&] {
                QVERIFY2(puedeValer && hay == m_antes.value(u"backups/OstrMod_bak.mdb"_s),
                         "a changed value restored");
            }();
        lineas::escribir(ruta("Tablas/OstrMod.mdb"), m_buena);
        return salida.codigo != 0;
    }

    Estado m_antes;
    QByteArray m_todo, m_buena, m_copia;
};

QTEST_MAIN(TstFallosFicheros)
#include "tst_fallos_ficheros.moc"
