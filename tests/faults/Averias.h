#pragma once

#include "support/LineasPrueba.h"
#include "support/Ostrel.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>

#include <SQLiteCpp/SQLiteCpp.h>
#include <filesystem>

/// The long form of the trials, of `./test --faults`.
inline bool largo()
{
    return qEnvironmentVariable("OSTREL_FALLOS") == u"largo";
}

/// The summary that `./test --faults` prints.
inline void contar(const char *que, const QString &cuenta)
{
    std::printf("FALLOS %-12s %s\n", que, qPrintable(cuenta));
    std::fflush(stdout);
}

/// Everything that a database holds, one row a line; "damaged" when it is not whole.
inline QByteArray contenidoDe(const QString &ruta)
{
    QByteArray todo;
    try {
        SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READONLY);
        if (base.execAndGet("PRAGMA integrity_check").getString() != "ok")
            return "damaged";
        SQLite::Statement tablas(base, "SELECT name FROM sqlite_schema WHERE type = 'table'");
        while (tablas.executeStep()) {
            const std::string tabla = tablas.getColumn(0).getString();
            if (tabla == "sqlite_sequence") // any counter above the keys is as good
                continue;
            SQLite::Statement filas(base, "SELECT * FROM " + tabla);
            while (filas.executeStep()) {
                for (int i = 0; i < filas.getColumnCount(); ++i)
                    todo += filas.getColumn(i).getString() + '|';
                todo += '\n';
            }
        }
    } catch (const SQLite::Exception &error) {
        return QByteArray("damaged: ") + error.what();
    }
    return todo;
}

/// A folder of the program, put back before each trial, and the commands that are tried on it.
struct Averias : Ostrel
{
    struct Prueba
    {
        const char *nombre;
        QStringList orden;
        const char *resultado; ///< the file that it makes or changes
    };
    using Estado = QMap<QString, QByteArray>;

    Averias()
    {
        carpeta = m_temporal.filePath(u"programa"_s);
        QDir().mkpath(carpeta);
        lineas::escribir(ruta("uno.txt"), lineas::fichero(1, 500));
        lineas::escribir(ruta("dos.txt"), lineas::fichero(480, 900));
        QByteArray hoja("NIF;Ejercicio;Periodo;Base\n");
        for (int numero = 1; numero <= 200; ++numero)
            hoja += lineas::dni(numero).toLatin1() + ";2026;3;100,5\n";
        lineas::escribir(ruta("hoja.csv"), hoja);
        lineas::escribir(ruta("a.pdf"), "an older one");
        hacer({u"importar"_s, ruta("uno.txt")});
        hacer(declarar(u"1"_s));
        hacer({u"copia"_s});
        hacer(declarar(u"2"_s));
        guardar(u"preparada"_s);
    }

    QString ruta(const char *relativa) const { return carpeta + u'/' + QLatin1String(relativa); }
    static QStringList declarar(const QString &periodo)
    {
        return partes("declarar 430 --ejercicio 2026 --base 123,45 --dni")
            + QStringList{lineas::dni(1), u"--periodo"_s, periodo};
    }
    QList<Prueba> pruebas() const
    {
        return {
            {"declarar", declarar(u"3"_s), "Tablas/OstrMod.mdb"},
            {"importar", {u"importar"_s, u"--automatico"_s, ruta("dos.txt")}, "Tablas/OstrMod.mdb"},
            {"hoja", {u"declarar"_s, u"--desde"_s, ruta("hoja.csv")}, "Tablas/OstrMod.mdb"},
            {"copia", {u"copia"_s}, "backups/OstrMod_bak.mdb"},
            {"restaurar", {u"restaurar"_s}, "Tablas/OstrMod.mdb"},
            {"exportar", {u"exportar"_s, ruta("fuera.txt")}, "fuera.txt"},
            {"pdf",
             partes("imprimir --modelo 430 --ejercicio 2026 --periodo 1 --dni")
                 + QStringList{lineas::dni(1), u"--pdf"_s, ruta("a.pdf")},
             "a.pdf"},
            {"inicio", {u"listar"_s, u"declarantes"_s}, "Tablas/OstrLec.mdb"}};
    }

    void guardar(const QString &nombre) const { copiar(carpeta, m_temporal.filePath(nombre)); }
    /// The folder as a trial finds it; without databases for that of the first start.
    void reponer(const Prueba &prueba) const
    {
        copiar(m_temporal.filePath(u"preparada"_s), carpeta);
        if (qstrcmp(prueba.nombre, "inicio") == 0)
            std::filesystem::remove_all(ruta("Tablas").toStdString());
    }
    /// Every file below the folder with what it says, where it differs from run to run without what
    /// does.
    Estado estado() const
    {
        Estado todo;
        QDirIterator ficheros(carpeta, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (ficheros.hasNext()) {
            const QString uno = ficheros.next();
            QByteArray dice = uno.endsWith(u".mdb") ? contenidoDe(uno) : lineas::leer(uno);
            if (dice.startsWith("%PDF-") && dice.endsWith("%%EOF\n"))
                dice = "a whole PDF";
            todo.insert(uno.mid(carpeta.size() + 1), dice);
        }
        return todo;
    }

    /// What the folder is before and after the command, undisturbed.
    struct Extremos
    {
        Estado antes, despues;
    };
    Extremos extremos(const Prueba &prueba) const
    {
        reponer(prueba);
        const Estado antes = estado();
        hacer(prueba.orden);
        return {antes, estado()};
    }

    /// After a trial that ended with `salida` (code -1: killed): told as it is, every file as
    /// before or as after, nothing left over but what the next run takes away, and the next try
    /// works.
    void comprobar(const Prueba &prueba, const Extremos &extremos, const Salida &salida,
                   bool restos) const
    {
        if (salida.codigo >= 0)
            QVERIFY2(salida.codigo == 0 ? salida.error.isEmpty() : contada(salida), salida.error);
        hacer({u"listar"_s, u"declarantes"_s}); // what the program does with a journal
        const Estado hay = estado();
        for (auto fichero = hay.begin(); fichero != hay.end(); ++fichero)
            QVERIFY2(
                esperado(extremos, fichero.key(), fichero.value(), restos),
                qPrintable(fichero.key() + u": "_s + QString::fromUtf8(fichero.value().left(300))));
        for (const QString &nombre : extremos.antes.keys())
            QVERIFY2(hay.contains(nombre) || nombre.endsWith(u"Errores.txt"), qPrintable(nombre));
        const QString suyo = QString::fromLatin1(prueba.resultado);
        const auto es = [&](const Estado &cual) { return hay.value(suyo) == cual.value(suyo); };
        if (salida.codigo == 0)
            QVERIFY2(es(extremos.despues), "not done, and told as done");
        else if (salida.codigo > 0 && !extremos.antes.isEmpty() && suyo != u"fuera.txt"
                 && suyo != u"Tablas/OstrLec.mdb")
            QVERIFY2(es(extremos.antes), "done, and told as not done");
        if (!es(extremos.despues) || suyo == u"a.pdf") {
            dicha(ostrel(prueba.orden), {});
            QCOMPARE(estado().value(suyo), extremos.despues.value(suyo));
        }
    }

private:
    /// A reason in a sentence, and nothing that is meant for a programmer.
    static bool contada(const Salida &salida)
    {
        return salida.codigo == 1 && salida.texto.isEmpty() && salida.error.endsWith(".\n")
            && salida.error.contains("«") && !salida.error.contains("SQLITE")
            && !salida.error.contains("std::");
    }
    static bool esperado(const Extremos &extremos, const QString &nombre, const QByteArray &dice,
                         bool restos)
    {
        static const QRegularExpression resto(
            u"\\.nuevo-[0-9a-f]{32}(-journal)?$|^a\\.pdf\\.\\w{6}$|^Tablas/OstrMod\\.mdb-journal$"_s);
        for (const Estado &cual : {extremos.antes, extremos.despues})
            if (const auto suyo = cual.constFind(nombre); suyo != cual.end() && *suyo == dice)
                return true;
        // an export keeps the lines that were written, Errores.txt is written anew by each import
        return nombre.endsWith(u"Errores.txt") || (restos && resto.match(nombre).hasMatch())
            || (nombre == u"fuera.txt" && extremos.despues.value(nombre).startsWith(dice)
                && (restos || dice.isEmpty() || dice.endsWith('\n')));
    }
    static void copiar(const QString &de, const QString &a)
    {
        namespace fs = std::filesystem;
        const fs::path destino(a.toStdString());
        if (fs::exists(destino)) // the folder itself stays: something may be mounted on it
            for (const auto &dentro : fs::directory_iterator(destino))
                fs::remove_all(dentro);
        fs::copy(de.toStdString(), destino, fs::copy_options::recursive);
    }

    QTemporaryDir m_temporal;
};
