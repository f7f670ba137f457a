#include "server/Nif.h"
#include "support/ServidorPrueba.h"

#include <array>

class TstServidorValidacion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(!m_servidor.traspaso()); }

    void nif_data()
    {
        QTest::addColumn<bool>("valido");
        for (const char *bueno : {"12345678Z", "00000000T", "X1234567L", "Y1234567X", "Z1234567R",
                                  "K1234567L", "A58818501", "Q2826000H", "G58818501", "G5881850A"})
            QTest::newRow(bueno) << true;
        for (const char *malo : {"", "12345678", "12345678A", "123456789", "1234567AZ", "12345678z",
                                 "A5881850A", "A58818502", "Q28260008", "I58818501", "O58818501",
                                 "T58818501", "Ñ58818501", "12345678ZZ", "X123 567L", "-1234567L"})
            QTest::newRow(malo) << false;
    }
    void nif()
    {
        QFETCH(bool, valido);
        QCOMPARE(servidor::nifValido(QString::fromUtf8(QTest::currentDataTag())), valido);
    }

    // Which of all control characters each prefix takes, worked out in another way.
    void nifTodosLosPrefijos()
    {
        const QString controles = QStringLiteral("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        for (const QChar prefijo : controles)
            for (const int numero : {0, 1, 1234567, 5881850, 7000003, 9999999}) {
                const QString cifras = QString::number(numero).rightJustified(7, u'0');
                QString aceptados;
                for (const QChar control : controles)
                    if (servidor::nifValido(prefijo + cifras + control))
                        aceptados += control;
                QCOMPARE(aceptados, esperados(prefijo, cifras));
            }
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
        caso("name", NOMBRE, "  ", 2);
        caso("street", DOMICILIO, "", 3);
        caso("no province", CODPROV, "", 4);
        caso("province 53", CODPROV, "53", 4);
        caso("postal code of another", CODPROV, "31", 5);
        caso("four figures", CODPOS, "2012", 6);
        caso("not figures", CODPOS, "2012A", 6);
        caso("three last zero", CODPOS, "20000", 7);
        caso("all zero", CODPOS, "00000", 8);
        caso("municipality code", CODMUN, "", 9);
        caso("municipality 000", CODMUN, "000", 9);
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
        QVERIFY_EXCEPTION_THROWN(objeto->ValidarDatosDeclarante({}), std::invalid_argument);
        Registro datos(RegValidacion::Total, QString());
        for (const auto &[campo, codigo] : {std::pair{RegValidacion::DNI, 1},
                                            {RegValidacion::NOMBRE, 2},
                                            {RegValidacion::DOMICILIO, 3},
                                            {RegValidacion::CODPROV, 4},
                                            {RegValidacion::CODPOS, 6},
                                            {RegValidacion::CODMUN, 9},
                                            {RegValidacion::NOMMUN, 10},
                                            {RegValidacion::TELEFONO, 12}}) {
            QCOMPARE(objeto->ValidarDatosDeclarante(datos), codigo);
            datos[campo] = validacion()[campo];
        }
        QCOMPARE(objeto->ValidarDatosDeclarante(datos), 0);
    }

    void fueraDeLaProvinciaNoHayCodigo()
    {
        Registro datos = validacion();
        datos[RegValidacion::CODPROV] = QStringLiteral("01");
        datos[RegValidacion::CODPOS] = QStringLiteral("01001");
        datos[RegValidacion::CODMUN] = QString();
        QCOMPARE(servicio::crear<SvrOstr::cDeclarante>()->ValidarDatosDeclarante(datos), 0);
    }

    void importar_data()
    {
        using namespace RegDeclarante;
        QTest::addColumn<int>("campo");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("hallazgo"); // in Basque
        const auto caso = [](const char *nombre, int campo, const char *valor, const char *texto) {
            QTest::newRow(nombre) << campo << QString::fromUtf8(valor) << QString::fromUtf8(texto);
        };
        caso("padded and lower case", NOMBRE, "  ana    ", "");
        caso("no telephone", TELEFONO, "         ", "");
        caso("number with zeros", NUMERO, "00012", "");
        caso("telephone", TELEFONO, "12", "Telefonoak 9 zifrako zenbakia izan behar du");
        caso("unknown street type", VIA, "##", "Ez dago horrelako bide motarik");
        caso("unknown municipality", CODMUN, "999", "Ez dago horrelako udalerri koderik");
        caso("number", NUMERO, "12A", "Kaleko zenbakiak zenbakia izan behar du");
        caso("postal code", CODPOS, "20000",
             "Posta kodearen azken hiru digituak zeroz bestekoak izango dira");
    }
    void importar()
    {
        QFETCH(int, campo);
        QFETCH(QString, valor);
        QFETCH(QString, hallazgo);
        Registro registro
            = ServidorPrueba::registro(QStringLiteral("12345678z"), QStringLiteral("ANA"));
        registro[campo] = valor;
        const Filas filas = m_servidor.declarantes()->ValidarDatosImportar(registro, 10000);
        QCOMPARE(columna(filas, 0), hallazgo.isEmpty() ? QVariantList() : QVariantList{hallazgo});
    }

    void importarCuentaTodos()
    {
        Registro registro = ServidorPrueba::registro(QStringLiteral("1"), QString());
        registro[RegDeclarante::VIA] = QString();
        const Filas filas = m_servidor.declarantes()->ValidarDatosImportar(registro, 0);
        const QVariantList esperado{
            QStringLiteral("El campo DNI-CIF es erróneo o carece de dígito de control."),
            QStringLiteral("La casilla Razón Social debe tener algún valor"),
            QStringLiteral("No existe ese tipo de vía.")};
        QCOMPARE(columna(filas, 0), esperado);
    }

    void cabecera_data()
    {
        QTest::addColumn<int>("ejercicio");
        QTest::addColumn<int>("periodo");
        QTest::addColumn<QString>("modelo");
        QTest::addColumn<int>("codigo");
        const auto m430 = QStringLiteral("430");
        QTest::newRow("valid") << 2026 << 1 << m430 << 0;
        QTest::newRow("first month") << 2002 << 3 << m430 << 0;
        QTest::newRow("last month") << 2030 << 10 << m430 << 0;
        QTest::newRow("no exercise") << 0 << 0 << QString() << 1;
        QTest::newRow("no period") << 2026 << 0 << QString() << 2;
        QTest::newRow("no model") << 2026 << 1 << QString() << 3;
        QTest::newRow("month before") << 2002 << 2 << m430 << 4;
        QTest::newRow("month after") << 2030 << 11 << m430 << 4;
        QTest::newRow("month 13") << 2026 << 13 << m430 << 4;
    }
    void cabecera()
    {
        QFETCH(int, ejercicio);
        QFETCH(int, periodo);
        QFETCH(QString, modelo);
        QFETCH(int, codigo);
        Registro datos{ejercicio, 1, periodo, 2002, 3, 2030, 10};
        const auto objeto = m_servidor.declaraciones();
        QCOMPARE(objeto->EjerPerValidos(datos), codigo == 0 || codigo == 3);
        datos += QVariantList{modelo, 1};
        QCOMPARE(objeto->ValidarDatosComunes(datos), codigo);
    }

    void figuras()
    {
        const auto objeto = servicio::crear<SvrOstr::cDeclaracion>();
        const QString marca = QStringLiteral("X");
        QCOMPARE(objeto->ValidarDatos430({QString(), 1.0, 0.0, 0.0}), 0);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, 0.0, 0.0}), 1);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, -5.0, 0.0}), 2);
        QCOMPARE(objeto->ValidarDatos430({marca, 1.0, -5.0, 5.0}), 0);
        QCOMPARE(objeto->ValidarDatos480({30.0, 10.0, 20.0, 7.0, 9.0}), 0);
        QCOMPARE(objeto->ValidarDatos480({30.0, 10.0, 21.0, 7.0, 9.0}), 2);
        QVERIFY_EXCEPTION_THROWN(objeto->ValidarDatos480({qQNaN(), 1.0, 1.0, 1.0, 1.0}),
                                 std::invalid_argument);
    }

private:
    static Registro validacion()
    {
        return {QStringLiteral("12345678Z"), QStringLiteral("ANA"),      QStringLiteral("MAYOR"),
                QStringLiteral("20"),        QStringLiteral("20123"),    QStringLiteral("001"),
                QStringLiteral("PUEBLO"),    QStringLiteral("943123456")};
    }

    static QString esperados(QChar prefijo, const QString &cifras)
    {
        static const std::array doble{0, 2, 4, 6, 8, 1, 3, 5, 7, 9};
        const QString personas = QStringLiteral("0123456789KLMXYZ");
        if (personas.contains(prefijo)) {
            const qsizetype cabeza = prefijo.isDigit()
                ? prefijo.digitValue()
                : qMax<qsizetype>(0, QStringLiteral("XYZ").indexOf(prefijo));
            // 10^7 leaves 14 when divided by 23.
            return QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKE")
                .at((14 * cabeza + cifras.toInt()) % 23);
        }
        if (QStringLiteral("IOT").contains(prefijo))
            return {};
        int suma = 0;
        for (int i = 0; i < 7; ++i) {
            const int cifra = cifras[i].digitValue();
            suma += i % 2 ? cifra : doble.at(static_cast<std::size_t>(cifra));
        }
        const int control = (100 - suma) % 10;
        const QString cifra = QString::number(control);
        const QString letra(QStringLiteral("JABCDEFGHI").at(control));
        return QStringLiteral("ABEH").contains(prefijo)  ? cifra
            : QStringLiteral("NPQRSW").contains(prefijo) ? letra
                                                         : cifra + letra;
    }

    ServidorPrueba m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorValidacion)
#include "tst_servidor_validacion.moc"
