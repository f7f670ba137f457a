#include "server/ValidacionDeclarante.h"
#include "support/ServidorPrueba.h"

using namespace Qt::StringLiterals;

class TstServidorValidacion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(!m_servidor.traspaso()); }

    void nif()
    {
        for (const char *bueno : {"12345678Z", "X1234567L", "Y1234567X", "Z1234567R", "K1234567L",
                                  "A58818501", "Q2826000H", "G58818501", "G5881850A"})
            QVERIFY2(servidor::nifValido(QString::fromUtf8(bueno)), bueno);
        for (const char *malo : {"", "12345678", "12345678A", "123456789", "1234567AZ", "12345678z",
                                 "A5881850A", "A58818502", "Q28260008", "I58818501", "Ñ58818501",
                                 "12345678ZZ", "X123 567L", "-1234567L"})
            QVERIFY2(!servidor::nifValido(QString::fromUtf8(malo)), malo);
    }

    void declarante_data()
    {
        using namespace RegValidacion;
        QTest::addColumn<int>("campo");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<int>("codigo");
        const auto caso = [](const char *nombre, int campo, const char *valor, int codigo) {
            QTest::newRow(nombre) << campo << QString::fromUtf8(valor) << codigo;
        };
        caso("valid", DNI, "12345678Z", 0);
        caso("identifier", DNI, "12345678A", 1);
        caso("foreigner", DNI, "X1234567L", 0);
        caso("name", NOMBRE, "  ", 2);
        caso("street", DOMICILIO, "", 3);
        caso("no province", CODPROV, "", 4);
        caso("province 53", CODPROV, "53", 4);
        caso("postal code of another", CODPROV, "31", 5);
        caso("four figures", CODPOS, "2012", 6);
        caso("not figures", CODPOS, "2012A", 6);
        caso("three last zero", CODPOS, "20000", 7);
        caso("another's and three last zero", CODPOS, "31000", 5);
        caso("all zero", CODPOS, "00000", 8);
        caso("municipality code", CODMUN, "", 9);
        caso("municipality 000", CODMUN, "000", 9);
        caso("municipality of four figures", CODMUN, "0001", 9);
        caso("municipality name", NOMMUN, "", 10);
        caso("eight figures", TELEFONO, "94312345", 11);
        caso("no telephone", TELEFONO, "", 12);
    }
    void declarante()
    {
        QFETCH(int, campo);
        QFETCH(QString, valor);
        QFETCH(int, codigo);
        Registro datos = validacion();
        datos[campo] = valor;
        QCOMPARE(servicio::crear<SvrOstr::cDeclarante>()->ValidarDatosDeclarante(datos), codigo);
    }

    void primeraReglaRota()
    {
        const auto objeto = servicio::crear<SvrOstr::cDeclarante>();
        Registro datos(RegValidacion::Total, QString());
        using namespace RegValidacion;
        const QList<int> campos{DNI, NOMBRE, DOMICILIO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO};
        QList<int> codigos;
        for (const int campo : campos) {
            codigos += objeto->ValidarDatosDeclarante(datos);
            datos[campo] = validacion()[campo];
        }
        QCOMPARE(codigos, (QList<int>{1, 2, 3, 4, 6, 9, 10, 12}));
        QCOMPARE(objeto->ValidarDatosDeclarante(datos), 0);
        // outside the home province there is no code of a municipality
        datos[RegValidacion::CODPROV] = u"01"_s;
        datos[RegValidacion::CODPOS] = u"01001"_s;
        datos[RegValidacion::CODMUN] = QString();
        QCOMPARE(objeto->ValidarDatosDeclarante(datos), 0);
    }

    void importar()
    {
        using namespace RegDeclarante;
        Registro registro = ServidorPrueba::registro(u"12345678z"_s, u"  ana    "_s);
        registro[NUMERO] = u"00012"_s;
        registro[TELEFONO] = u"         "_s;
        const auto objeto = m_servidor.declarantes();
        QVERIFY(objeto->ValidarDatosImportar(registro, 10000).isEmpty());
        registro[VIA] = u"##"_s;
        registro[CODMUN] = u"999"_s;
        QCOMPARE(columna(objeto->ValidarDatosImportar(registro, 10000), 0).size(), 2);
        registro[CODMUN] = u"001"_s;
        QCOMPARE(columna(objeto->ValidarDatosImportar(registro, 10000), 0),
                 QVariantList{u"Ez dago horrelako bide motarik"_s});
    }

    void cabecera_data()
    {
        QTest::addColumn<int>("ejercicio");
        QTest::addColumn<int>("periodo");
        QTest::addColumn<QString>("modelo");
        QTest::addColumn<int>("codigo");
        const auto m430 = u"430"_s;
        QTest::newRow("valid") << 2026 << 1 << m430 << 0;
        QTest::newRow("first month") << 2002 << 3 << m430 << 0;
        QTest::newRow("annual") << 2026 << 12 << u"480"_s << 0;
        QTest::newRow("last month") << 2030 << 10 << m430 << 0;
        QTest::newRow("no exercise") << 0 << 0 << QString() << 1;
        QTest::newRow("no period") << 2026 << 0 << QString() << 2;
        QTest::newRow("no model") << 2026 << 1 << QString() << 3;
        QTest::newRow("month before") << 2002 << 2 << m430 << 4;
        QTest::newRow("month after") << 2030 << 11 << m430 << 4;
        QTest::newRow("month 13") << 2026 << 13 << m430 << 4;
        QTest::newRow("before Christ") << -1 << 5 << m430 << 4;
        QTest::newRow("annual in May") << 2026 << 5 << u"480"_s << 2;
    }
    void cabecera()
    {
        QFETCH(int, ejercicio);
        QFETCH(int, periodo);
        QFETCH(QString, modelo);
        QFETCH(int, codigo);
        const int periodicidad = modelo == u"480" ? 2 : 1;
        Registro datos{ejercicio, periodicidad, periodo, 2002, 3, 2030, 10};
        const auto objeto = m_servidor.declaraciones();
        QCOMPARE(objeto->EjerPerValidos(datos), codigo == 0 || codigo == 3);
        datos += QVariantList{modelo, 1};
        QCOMPARE(objeto->ValidarDatosComunes(datos), codigo);
    }

    void figuras()
    {
        const auto objeto = servicio::crear<SvrOstr::cDeclaracion>();
        const QString marca = u"X"_s;
        QCOMPARE(objeto->ValidarDatos430({QString(), 1.0, 0.0, 0.0}), 0);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, 0.0, 0.0}), 1);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, -5.0, 0.0}), 2);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, -5.0, 5.0}), 0);
        QCOMPARE(objeto->ValidarDatos480({30.0, 10.0, 20.0, 7.0, 9.0}), 0);
        QCOMPARE(objeto->ValidarDatos480({30.0, 10.0, 21.0, 7.0, 9.0}), 2);
    }

private:
    static Registro validacion()
    {
        return {u"12345678Z"_s, u"ANA"_s, u"MAYOR"_s,  u"20"_s,
                u"20123"_s,     u"001"_s, u"PUEBLO"_s, u"943123456"_s};
    }

    ServidorPrueba m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorValidacion)
#include "tst_servidor_validacion.moc"
