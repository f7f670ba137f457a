#include "server/AlmacenDeclaraciones.h"
#include "server/CopiaElegida.h"
#include "server/cTraspaso.h"
#include "support/ServidorPrueba.h"

#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

using namespace servidor;

/// Everything that the service hands out of the stored data, each by a name; what it tells instead
/// is an invalid value.
using Leido = QMap<QString, QVariant>;

static const QVariant Dicho;

/// What is stored is changed behind the program's back: told, and never taken for what was saved.
class TstServidorDanos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_servidor.emplace();
        QVERIFY(!m_servidor->traspaso());
        m_servidor->generales(m_servidor->datos())->CambiarIdioma(u"E"_s);
    }

    /// One column after the other, in every table.
    void cadaColumna()
    {
        poblar(2);
        const QByteArray bueno = bytes(ruta());
        const Leido antes = leer();
        QCOMPARE(antes.size(), 22);
        const QString otra = m_servidor->carpeta() + u"/Otra.mdb"_s;
        escribir(otra, bueno);
        int columnas = 0;
        for (const TablaProbada *tabla : tablasProbadas()) {
            for (const auto &[columna, clase] : columnasDe(tabla->nombre)) {
                escribir(ruta(), bueno);
                cambiar("UPDATE " + tabla->nombre + " SET " + columna + " = " + columna
                        + (clase == "TEXT" ? " || 'X'" : " + 77")
                        + " WHERE rowid = (SELECT min(rowid) FROM " + tabla->nombre + ")");
                QVERIFY(!m_servidor->traspaso());
                const auto nombre = QByteArray::fromStdString(tabla->nombre + '.' + columna);
                QVERIFY2(leer() != antes, nombre);
                noCambiado(antes, true, nombre);
                QCOMPARE(falloDe([&] { m_servidor->comprobar(); }), Fallo::RegistroDanado);
                const auto alRestaurar = falloDe([&] { CopiaElegida(ruta(), otra); });
                QVERIFY2(alRestaurar == Fallo::RegistroDanado
                             || (columna.starts_with("CS") && alRestaurar == Fallo::Danada),
                         nombre);
                ++columnas;
            }
        }
        QCOMPARE(columnas, 20 + 9 + 11 + 58);
        // a setting counts as never set
        escribir(ruta(), bueno);
        QVERIFY(!m_servidor->traspaso());
        QCOMPARE(m_servidor->generales(ruta())->ObtenerIdioma(), u"E"_s);
        for (const char *columna : {"CLAVE = 'ACTONLINE'", "VALOR = 'C'", "PRUEBA = PRUEBA + 1"}) {
            escribir(ruta(), bueno);
            cambiar(std::string("UPDATE AJUSTES SET ") + columna);
            QVERIFY(!m_servidor->traspaso());
            QCOMPARE(m_servidor->generales(ruta())->ObtenerIdioma(), QString());
            QCOMPARE(m_servidor->generales(ruta())->ObtenerActOnline(), 0);
        }
    }

    /// The lists go on with the others; the damaged one is not written over, and can be deleted.
    void listasYSalida()
    {
        poblar(2);
        cambiar("UPDATE DECLARANTES SET TELEFONO = '1' WHERE CSCO = 1;"
                "UPDATE DECLARACIONES SET IMPORTE = 5 WHERE CSDE = 1;"
                "UPDATE DATOS480 SET C01 = 5 WHERE CSDE = 4");
        QVERIFY(!m_servidor->traspaso());
        const auto declarantes = m_servidor->declarantes();
        const auto declaraciones = m_servidor->declaraciones();
        QCOMPARE(dichoPor([&] { m_servidor->comprobar(); }),
                 u"D1 - N1; D1 - N1: 430 2026-03; D2 - ÑANDÚ: 480 2026"_s);
        const Registro danado{1, u"D1"_s, u"N1"_s};
        Filas filas;
        QCOMPARE(declarantes->dameResultadoExportar(filas, 2), 2);
        QCOMPARE(filas[0].toList(), danado);
        QCOMPARE(filas[1].toList().size(), int(RegDeclarante::Total));
        QCOMPARE(declarantes->dameResultado(filas, 1, 0), 2);
        QCOMPARE(filas[0].toList(), danado);
        Registro fila;
        declarantes->CargarListado(1, fila);
        QCOMPARE(fila, danado);
        filas.clear();
        declarantes->RecorrerLista([&](const Registro &una) {
            filas += QVariant(una.first(3));
            return true;
        });
        QCOMPARE(filas, (Filas{danado, Registro{2, u"D2"_s, u"ÑANDÚ"_s}}));
        declarantes->ObtenerUltimosDeclarantes(filas);
        QCOMPARE(columna(filas, FilaReciente::CSCO), QVariantList{2});
        declaraciones->dameResultado(filas, 1);
        QCOMPARE(filas[0].toList(), (Registro{1, 2026, 1, 3, u"430"_s, 1, QVariant()}));
        QCOMPARE(filas[1].toList(), (Registro{2, 2026, 2, 12, u"480"_s, 2, 56.0}));
        // a month that is damaged is one of its own year's
        QCOMPARE(falloDe([&] { declarantes->ObtListDecl430(filas, 2026, 1); }),
                 Fallo::RegistroDanado);
        QVERIFY(!declarantes->ObtListDecl430(filas, 2025, 1) && filas.isEmpty());
        const QByteArray antes = bytes(ruta());
        const auto rechazado = [&](const std::function<void()> &f) {
            QCOMPARE(falloDe(f), Fallo::RegistroDanado);
            QCOMPARE(bytes(ruta()), antes);
        };
        auto registro = ServidorPrueba::registro(u"D1"_s, u"OTRO"_s);
        registro[RegDeclarante::CSCO] = 1;
        rechazado([&] { declarantes->GuardarDeclarante(registro); });
        rechazado([&] { declaraciones->Guardar430(ServidorPrueba::datos430(1, 2026, 3, 9.0, 1)); });
        rechazado([&] { declaraciones->Guardar480(ServidorPrueba::datos480(2, 2026, 4)); });
        // of a set the others are stored
        QCOMPARE(
            declaraciones->GuardarConjunto({QVariant(ServidorPrueba::datos480(2, 2026, 4)),
                                            QVariant(ServidorPrueba::datos430(2, 2026, 3, 9.0, 3))},
                                           false),
            (Registro{0, 3}));
        for (const auto &[csde, modelo] : {std::pair{1, u"430"_s}, {2, u"480"_s}, {4, u"480"_s}}) {
            declaraciones->BorrarDatosNoComunes(csde, modelo);
            declaraciones->BorrarDeclaracion(csde);
        }
        declarantes->BorrarDeclarante(1);
        QCOMPARE(dichoPor([&] { m_servidor->comprobar(); }), QString());
    }

    /// Five are named, and that there are others.
    void muchas()
    {
        poblar(3);
        cambiar("UPDATE DECLARACIONES SET IMPORTE = -1 WHERE CSDE < 6");
        const QString cinco = u"D1 - N1: 430 2026-03; D1 - N1: 480 2026; D2 - ÑANDÚ: 430 2026-03; "
                              "D2 - ÑANDÚ: 480 2026; D3 - N3: 430 2026-03"_s;
        QCOMPARE(dichoPor([&] { m_servidor->comprobar(); }), cinco);
        cambiar("UPDATE DECLARACIONES SET IMPORTE = -1");
        QCOMPARE(dichoPor([&] { m_servidor->comprobar(); }), cinco + u"; …"_s);
    }

    /// A file of the schema before keeps its rows, gets their values, and is then as a new one.
    void migracion()
    {
        poblar(3);
        const Leido antes = leer();
        const auto esquema = [&] {
            auto base = otro();
            SQLite::Statement fila(base, "SELECT sql FROM sqlite_schema ORDER BY name");
            QStringList textos;
            while (fila.executeStep())
                textos += QString::fromStdString(fila.getColumn(0).getString());
            return textos;
        };
        const QStringList nuevo = esquema();
        std::string vieja = "DROP TRIGGER DECLARACION_ALTA; DROP TRIGGER DECLARACION_BAJA;";
        for (const TablaProbada *tabla : tablasProbadas())
            vieja += "ALTER TABLE " + tabla->nombre + " DROP COLUMN PRUEBA;";
        cambiar(vieja
                + "CREATE TRIGGER DECLARACION_ALTA AFTER INSERT ON DECLARACIONES BEGIN SELECT 1; "
                  "END; CREATE TRIGGER DECLARACION_BAJA AFTER DELETE ON DECLARACIONES BEGIN "
                  "SELECT 1; END; UPDATE DECLARANTES SET NUM480 = 9; PRAGMA user_version = 1");
        const QByteArray vieja1 = bytes(ruta());
        { // an older copy can be restored, its rows as they are
            const QString copia = m_servidor->carpeta() + u"/copia.mdb"_s;
            escribir(copia, vieja1);
            QCOMPARE(CopiaElegida(copia, ruta()).resumen().declaraciones, 6);
        }
        QVERIFY(!m_servidor->traspaso());
        QCOMPARE(dichoPor([&] { m_servidor->comprobar(); }), QString());
        QCOMPARE(leer(), antes);
        QCOMPARE(esquema(), nuevo);
        QCOMPARE(otro(copiaAnterior(ruta(), 1)).execAndGet("PRAGMA user_version").getInt(), 1);
    }

    /// An index whose entry leads elsewhere, a page that lost a row: what they hide is not said to
    /// be missing.
    void indicesQueEsconden()
    {
        poblar(2);
        const QByteArray bueno = bytes(ruta());
        const auto poner = [&](const QByteArray &base) {
            escribir(ruta(), base);
            Conexion::olvidar(ruta()); // which sees what SQLite writes, not this
        };
        const auto probar
            = [&](const QByteArray &malo, const QList<std::function<void()>> &preguntas) {
                  for (const auto &pregunta : preguntas) {
                      poner(bueno);
                      pregunta();
                      poner(malo);
                      QCOMPARE(falloDe(pregunta), Fallo::Danada);
                  }
                  QVERIFY(falloDe([&] { m_servidor->comprobar(); }));
              };
        const auto escondido = [&](const QByteArray &entrada, const QByteArray &otra,
                                   const QList<std::function<void()>> &preguntas) {
            QCOMPARE(bueno.count(entrada), 1);
            probar(QByteArray(bueno).replace(entrada, otra), preguntas);
        };
        /// The page of a table has a row less.
        const auto sinUna = [&](const char *tabla, const QList<std::function<void()>> &preguntas) {
            poner(bueno);
            const int pagina = otro().execAndGet(
                std::string("SELECT rootpage FROM sqlite_schema WHERE name = '") + tabla + "'");
            QByteArray malo = bueno;
            --malo[(pagina - 1) * 4096 + 4];
            probar(malo, preguntas);
        };
        const auto declaraciones = m_servidor->declaraciones();
        Filas filas;
        const auto buscar = [&](const QString &dni) {
            declaraciones->Buscar({QVariant(Registro{dni, 2026, 12, u"480"_s})}, filas);
        };
        escondido("\x03\x11\x01"
                  "D2\x02",
                  "\x03\x11\x01"
                  "D3\x02",
                  {[&] { m_servidor->declarantes()->ObtenerCodigoDeclarante(u"D2"_s); },
                   [&] { buscar(u"D2"_s); },
                   [&] {
                       m_servidor->declarantes()->GuardarDeclarante(
                           ServidorPrueba::registro(u"D2"_s, u"OTRO"_s));
                   }});
        escondido(
            "\x02\x07\xEA\x0C"
            "480\x04",
            "\x03\x07\xEA\x0C"
            "480\x04",
            {[&] { declaraciones->dameResultado(filas, 2); }, [&] { buscar(u"D2"_s); },
             [&] { m_servidor->declarantes()->ObtListDecl430(filas, 2026, 2); },
             [&] {
                 declaraciones->ValidarDatosComunes({2026, 2, 12, 2020, 1, 2030, 12, u"480"_s, 2});
             }});
        const auto pendientes = [&] {
            declaraciones->RecorrerPendientes(2026, u"430"_s, 3,
                                              [](const Registro &) { return true; });
        };
        const auto declarantes = m_servidor->declarantes();
        sinUna("DECLARACIONES", {pendientes});
        sinUna("DECLARANTES",
               {pendientes, [&] { declarantes->dameResultado(filas, 2, 0); },
                [&] { declarantes->dameResultadoExportar(filas, 1); },
                [&] { declarantes->RecorrerLista([](const Registro &) { return true; }); }});
        for (const char *esquema :
             {"sql = replace(sql, 'NUM430 + (', 'NUM430 - (') WHERE type = 'trigger'",
              "sql = replace(sql, 'UNIQUE', 'NOT NULL') WHERE name = 'DECLARANTES'",
              "tbl_name = 'DATOS480' WHERE name = 'DATOS430'"}) {
            poner(bueno);
            cambiar(std::string("PRAGMA writable_schema = ON; UPDATE sqlite_schema SET ")
                    + esquema);
            QCOMPARE(falloDe([&] { m_servidor->comprobar(); }), Fallo::Danada);
        }
        for (const char *contadores :
             {"SET seq = 1 WHERE name = 'DECLARANTES'", "SET seq = 3 WHERE name = 'DECLARACIONES'",
              "SET seq = 2147483648", "SET name = 'OTRO'", "SET seq = 'X'"}) {
            poner(bueno);
            cambiar(std::string("UPDATE sqlite_sequence ") + contadores);
            QCOMPARE(falloDe([&] { m_servidor->comprobar(); }), Fallo::Danada);
        }
    }

    /// The first write looks at what it has nothing to do with, too.
    void primeraEscritura()
    {
        poblar(1);
        QByteArray malo = bytes(ruta());
        const int pagina
            = otro().execAndGet("SELECT rootpage FROM sqlite_schema WHERE name = 'DATOS480'");
        malo[(pagina - 1) * 4096] = 0x55;
        Conexion::olvidar(ruta());
        escribir(ruta(), malo);
        QCOMPARE(falloDe([&] { m_servidor->alta(dni(2), u"N"_s); }), Fallo::Danada);
        QCOMPARE(bytes(ruta()), malo);
    }

    /// OSTREL_BITS=1000 for the long run.
    void unBit()
    {
        poblar(30);
        const QByteArray bueno = bytes(ruta());
        const Leido antes = leer();
        const int veces = std::max(qEnvironmentVariableIntValue("OSTREL_BITS"), 60);
        QRandomGenerator azar(14);
        QMap<QByteArray, int> cuentas;
        for (int i = 0; i < veces; ++i) {
            const auto bit = azar.bounded(quint32(bueno.size() * 8));
            QByteArray malo = bueno;
            malo[bit / 8] = char(malo[bit / 8] ^ (1 << bit % 8));
            escribir(ruta(), malo);
            ++cuentas[probarBit(antes, bit)];
        }
        qInfo() << veces << "bits of" << bueno.size() << "bytes:" << cuentas;
        QVERIFY(cuentas["refused"] > 0 && cuentas["told"] > 0 && cuentas["no matter"] > 0);
    }

private:
    QString ruta() const { return m_servidor->datos(); }
    SQLite::Database otro(const QString &fichero = {}) const
    {
        return SQLite::Database((fichero.isEmpty() ? ruta() : fichero).toStdString(),
                                SQLite::OPEN_READWRITE);
    }
    void cambiar(const std::string &sql) const { otro().exec("PRAGMA synchronous = OFF;" + sql); }

    QList<std::pair<std::string, std::string>> columnasDe(const std::string &tabla) const
    {
        auto base = otro();
        SQLite::Statement fila(base, "PRAGMA table_info(" + tabla + ")");
        QList<std::pair<std::string, std::string>> columnas;
        while (fila.executeStep() && tabla != "AJUSTES")
            columnas.append({fila.getColumn(1).getString(), fila.getColumn(2).getString()});
        return columnas;
    }

    /// Declarants 1 to `cuantos`, each with a 430 of March (key 2n - 1) and the year's 480 (2n).
    void poblar(int cuantos) const
    {
        m_cuantos = cuantos;
        if (cuantos > 3)
            llenar(ruta(), cuantos);
        Filas registros;
        for (int i = 1; i <= cuantos; ++i) {
            if (cuantos <= 3)
                m_servidor->alta(dni(i), i == 2 ? u"ÑANDÚ"_s : u"N%1"_s.arg(i));
            registros += QVariant(ServidorPrueba::datos430(i, 2026, 3, 1000.0 * i));
            registros += QVariant(ServidorPrueba::datos480(i, 2026));
        }
        m_servidor->declaraciones()->GuardarConjunto(registros, true);
    }
    static QString dni(int i) { return u"D%1"_s.arg(i); }

    /// The name in what `f` tells of damaged rows; empty when it tells nothing.
    static QString dichoPor(const std::function<void()> &f)
    {
        try {
            f();
            return {};
        } catch (const ErrorDatos &error) {
            return error.fallo() == Fallo::RegistroDanado ? error.objeto() : u"another"_s;
        }
    }

    template <class F> static QVariant valor(F &&f)
    {
        try {
            return QVariant(f());
        } catch (const ErrorDatos &) {
            return Dicho;
        }
    }

    /// Rows by their keys; a row that says that it is damaged is none.
    template <class F> static void anotarFilas(Leido &leido, const QString &que, F &&leerFilas)
    {
        const QVariant todas = valor(leerFilas);
        if (!todas.isValid())
            leido.insert(que, Dicho);
        for (const QVariant &una : todas.toList()) {
            const auto fila = una.toList();
            const bool danada = esDanado(fila)
                || std::ranges::any_of(fila, [](const QVariant &v) { return !v.isValid(); });
            leido.insert(que + fila[0].toString(), danada ? Dicho : una);
        }
    }

    Leido leer() const
    {
        Leido leido;
        const auto declarantes = m_servidor->declarantes();
        const auto declaraciones = m_servidor->declaraciones();
        Filas filas;
        anotarFilas(leido, u"exportado "_s, [&] {
            declarantes->dameResultadoExportar(filas, 1);
            return filas;
        });
        anotarFilas(leido, u"listado "_s, [&] {
            declarantes->dameResultado(filas, 2, 0);
            return filas;
        });
        anotarFilas(leido, u"pendiente "_s, [&] {
            filas.clear();
            declaraciones->RecorrerPendientes(2026, u"430"_s, 3, [&](const Registro &fila) {
                filas += QVariant(fila);
                return true;
            });
            return filas;
        });
        anotarFilas(leido, u"en la lista "_s, [&] {
            filas.clear();
            declarantes->RecorrerLista([&](Registro fila) {
                if (!esDanado(fila)) // what lists do not show is null
                    fila.removeIf([](const QVariant &v) { return !v.isValid(); });
                filas += QVariant(fila);
                return true;
            });
            return filas;
        });
        for (qint32 csco = 1; csco <= m_cuantos; ++csco) {
            Registro registro;
            leido.insert(u"declarante %1"_s.arg(csco), valor([&] {
                             declarantes->CargarDeclarante(csco, registro);
                             return registro;
                         }));
            leido.insert(u"dni %1"_s.arg(csco),
                         valor([&] { return declarantes->ObtenerCodigoDeclarante(dni(csco)); }));
            anotarFilas(leido, u"declaraciones de %1: "_s.arg(csco), [&] {
                declaraciones->dameResultado(filas, csco);
                return filas;
            });
            qint32 mensual = 2 * csco - 1, anual = 2 * csco;
            leido.insert(u"430 de %1"_s.arg(csco), valor([&] {
                             declaraciones->Cargar430(mensual, registro);
                             return registro;
                         }));
            leido.insert(u"480 de %1"_s.arg(csco), valor([&] {
                             declaraciones->Cargar480(anual, registro);
                             return registro;
                         }));
            leido.insert(u"mensuales de %1"_s.arg(csco), valor([&] {
                             declarantes->ObtListDecl430(filas, 2026, csco);
                             return filas;
                         }));
        }
        return leido;
    }

    /// What is read is what was saved, or told; what is left out has to be told by the whole-file
    /// check (`comprobado`).
    void noCambiado(const Leido &antes, bool comprobado, const QByteArray &caso) const
    {
        const Leido ahora = leer();
        QVERIFY2(comprobado || ahora == antes, caso);
        for (const auto &[que, leido] : ahora.asKeyValueRange()) {
            const QByteArray texto = caso + ": " + que.toUtf8();
            const QVariant bueno = antes.value(que);
            if (leido == Dicho || leido == bueno)
                continue;
            // whoever writes by way of SQLite changes the indexes, too
            const bool porSQL = !caso.startsWith("bit");
            if (porSQL && que.startsWith(u"dni"))
                QVERIFY2(leido == 0, texto);
            else if (porSQL && que.startsWith(u"mensuales"))
                QVERIFY2(leido.toList().isEmpty(), texto);
            else if (que.startsWith(u"pendiente"))
                QVERIFY2(leido.toList().first(4) == bueno.toList().first(3) + Registro{0}, texto);
            else
                QVERIFY2(false, texto);
        }
    }

    QByteArray probarBit(const Leido &antes, quint32 bit) const
    {
        const QByteArray caso = "bit " + QByteArray::number(bit);
        if (falloDe([&] { m_servidor->traspaso(); })) {
            noCambiado(antes, true, caso);
            return "refused";
        }
        const bool dicho = falloDe([&] { m_servidor->comprobar(); }).has_value();
        noCambiado(antes, dicho, caso);
        return dicho ? "told" : "no matter";
    }

    std::optional<ServidorPrueba> m_servidor;
    mutable int m_cuantos = 0;
};

QTEST_GUILESS_MAIN(TstServidorDanos)
#include "tst_servidor_danos.moc"
