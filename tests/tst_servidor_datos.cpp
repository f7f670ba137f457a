#include "dataservice/ListasSql.h"
#include "server/Dialogos.h"
#include "support/ServidorPrueba.h"

#include <SQLiteCpp/Database.h>
#include <algorithm>

class TstServidorDatos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_servidor.emplace();
        QVERIFY(!m_servidor->traspaso());
    }

    void ajustes()
    {
        const auto objeto = m_servidor->generales(m_servidor->modelo());
        QCOMPARE(objeto->ObtenerIdioma(), QString());
        QCOMPARE(objeto->ObtenerActOnline(), 0);
        objeto->CambiarIdioma(QStringLiteral("E"));
        QCOMPARE(objeto->ObtenerIdioma(), QStringLiteral("E"));
        objeto->CambiarIdioma(QStringLiteral("otro"));
        QCOMPARE(objeto->ObtenerIdioma(), QStringLiteral("C"));
        objeto->GuardarActOnline(-1);
        QCOMPARE(objeto->ObtenerActOnline(), -1);
    }

    void limitesYDireccion()
    {
        const auto objeto = m_servidor->generales(m_servidor->consulta());
        Registro limites;
        objeto->DameEjerPerMinMax(limites);
        QCOMPARE(limites, (Registro{2002, 2030, 1, 12}));
        QCOMPARE(objeto->URLAct(), QStringLiteral("https://www.varlenda.example/ostrel/version"));
    }

    void tipos_data()
    {
        QTest::addColumn<int>("ejercicio");
        QTest::addColumn<int>("periodo");
        QTest::addColumn<float>("mensual");
        QTest::addColumn<QVariantList>("anuales");
        QTest::newRow("before any") << 1996 << 12 << 0.0F << QVariantList{0.0F};
        QTest::newRow("first") << 1997 << 1 << 4.0F << QVariantList{4.0F};
        QTest::newRow("last month of the second") << 2020 << 12 << 6.0F << QVariantList{6.0F};
        QTest::newRow("first month of the third") << 2021 << 1 << 8.0F << QVariantList{8.0F};
        QTest::newRow("now") << 2026 << 7 << 8.0F << QVariantList{8.0F};
        QTest::newRow("before a change in July") << 2027 << 6 << 8.0F << QVariantList{8.0F, 9.15F};
        QTest::newRow("after it") << 2027 << 7 << 9.15F << QVariantList{8.0F, 9.15F};
        QTest::newRow("the year after") << 2028 << 1 << 9.15F << QVariantList{9.15F};
    }
    void tipos()
    {
        QFETCH(int, ejercicio);
        QFETCH(int, periodo);
        QFETCH(float, mensual);
        QFETCH(QVariantList, anuales);
        SQLite::Database(m_servidor->consulta().toStdString(), SQLite::OPEN_READWRITE)
            .exec("INSERT INTO T09_TIPOS VALUES (202707, 915)");
        const auto objeto = m_servidor->generales(m_servidor->consulta());
        QCOMPARE(objeto->ObtenerTipoImpositivo(static_cast<qint16>(ejercicio),
                                               static_cast<quint8>(periodo)),
                 mensual);
        Registro tipos;
        objeto->ObtenerTipoAnual(tipos, static_cast<qint16>(ejercicio));
        QCOMPARE(tipos, anuales);
    }

    void nombres()
    {
        const auto objeto = m_servidor->generales(m_servidor->consulta());
        QString nombre;
        for (const qint16 idioma : {qint16(0), qint16(10000)}) {
            objeto->ObtenerNombreProvincia(QStringLiteral("20"), nombre, idioma);
            QCOMPARE(nombre, QStringLiteral("VARLENDA"));
        }
        objeto->ObtenerNombreProvincia(QStringLiteral("99"), nombre, 0);
        QCOMPARE(nombre, QString());
        Filas municipios;
        objeto->CargarMunicipios(ListasSql::Municipios[0].toString(), municipios);
        const QVariantList primero = municipios.value(0).toList();
        objeto->ObtenerNombreMunicipio(primero.value(0).toString(), nombre);
        QVERIFY(!nombre.isEmpty());
        QCOMPARE(nombre, primero.value(1).toString());
    }

    void listasEnOrdenDeLectura()
    {
        const auto objeto = m_servidor->generales(m_servidor->consulta());
        Filas filas;
        objeto->CargarProvincias(ListasSql::Provincias[0].toString(), filas);
        QCOMPARE(filas.size(), 52);
        const QVariantList nombres = columna(filas, 1);
        const auto puesto = [&](const char *n) { return nombres.indexOf(QString::fromUtf8(n)); };
        QCOMPARE(puesto("ZARAGOZA"), 51);
        QVERIFY(puesto("VARLENDA") > puesto("BURGOS"));
        const auto conTilde = std::find_if(nombres.begin(), nombres.end(), [](const QVariant &v) {
            return v.toString().startsWith(QStringLiteral("Á"));
        });
        QVERIFY(conTilde != nombres.end());
        QVERIFY(conTilde - nombres.begin() < puesto("BURGOS"));
        objeto->CargarVias(ListasSql::Vias[1].toString(), filas);
        QVERIFY(columna(filas, 0).contains(QStringLiteral("CL")));
    }

    void soloUnSelect_data()
    {
        QTest::addColumn<QString>("sql");
        for (const char *sql :
             {"", "DELETE FROM T08_GENERAL", "SELECT 1, 2; DROP TABLE T08_GENERAL",
              "Select T07_CODIGO From T07_SIGLASVIA", "PRAGMA query_only"})
            QTest::newRow(sql) << QString::fromUtf8(sql);
    }
    void soloUnSelect()
    {
        const auto objeto = m_servidor->generales(m_servidor->consulta());
        QFETCH(QString, sql);
        Filas filas{1};
        QVERIFY_EXCEPTION_THROWN(objeto->CargarVias(sql, filas), std::invalid_argument);
        QCOMPARE(filas, Filas{1});
    }

    void hacienda()
    {
        const auto objeto = servicio::crear<SvrKtComunLib::cMiscelaneos>();
        QCOMPARE(objeto->HaciendaFiscalidad(),
                 QStringLiteral("Departamento de Hacienda y Finanzas"));
        objeto->Idioma(10000);
        QCOMPARE(objeto->HaciendaFiscalidad(), QStringLiteral("Ogasun eta Finantza Saila"));
        objeto->Idioma(1000);
        QCOMPARE(objeto->HaciendaFiscalidad(),
                 QStringLiteral("Ogasun eta Finantza Saila\nDepartamento de Hacienda y Finanzas"));
    }

    void ayudaEnLinea()
    {
        struct Apuntados : Dialogos
        {
            QStringList mostrado;
            void abrirDireccion(const QString &direccion, quintptr padre) override
            {
                mostrado += direccion + QString::number(padre);
            }
            void informar(const QString &texto, quintptr) override { mostrado += texto; }
        } dialogos;
        registrarServidor(&dialogos);
        const auto objeto = servicio::crear<SvrKtComunLib::cMiscelaneos>();
        objeto->Parent(5);
        objeto->AccesoAyuOnline();
        objeto->Idioma(10000);
        objeto->MostrarOnlineInfo();
        QCOMPARE(dialogos.mostrado.size(), 2);
        QCOMPARE(dialogos.mostrado[0],
                 QStringLiteral("https://www.varlenda.example/ostrel/ayuda5"));
        QVERIFY(dialogos.mostrado[1].startsWith(QStringLiteral("Lineako laguntza")));
        registrarServidor();
    }

private:
    std::optional<ServidorPrueba> m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorDatos)
#include "tst_servidor_datos.moc"
