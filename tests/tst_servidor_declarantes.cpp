#include "support/ServidorPrueba.h"

class TstServidorDeclarantes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_servidor.emplace();
        QVERIFY(!m_servidor->traspaso());
    }

    void altaYCarga()
    {
        using namespace RegDeclarante;
        Registro registro
            = ServidorPrueba::registro(QStringLiteral("12345678z"), QStringLiteral(" ana "));
        registro[DOMICILIO] = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ'%;?");
        registro[CODPROV] = QStringLiteral("1");
        registro[CODMUN] = QStringLiteral("000");
        QCOMPARE(m_servidor->declarantes()->GuardarDeclarante(registro), 0);
        qint32 clave
            = m_servidor->declarantes()->ObtenerCodigoDeclarante(QStringLiteral("12345678Z"));
        QVERIFY(clave > 0);
        Registro cargado;
        m_servidor->declarantes()->CargarDeclarante(clave, cargado);

        registro[CSCO] = clave;
        registro[DNI] = QStringLiteral("12345678Z");
        registro[NOMBRE] = QStringLiteral("ANA");
        registro[CODPROV] = QStringLiteral("01");
        registro[CODMUN] = QString();
        registro[NUM430] = registro[NUM480] = 0.0; // not what the caller said
        QCOMPARE(cargado, registro);
        QCOMPARE(m_servidor->generales(m_servidor->modelo())->NumeroDeclarantes(), 1);
    }

    void duplicados()
    {
        const qint32 ana = m_servidor->alta(QStringLiteral("12345678Z"), QStringLiteral("ANA"));
        const qint32 eva = m_servidor->alta(QStringLiteral("00000000T"), QStringLiteral("EVA"));
        Registro registro
            = ServidorPrueba::registro(QStringLiteral("12345678Z"), QStringLiteral("OTRA"));
        const auto objeto = m_servidor->declarantes();
        QCOMPARE(objeto->GuardarDeclarante(registro), 1);
        registro[RegDeclarante::CSCO] = eva;
        QCOMPARE(objeto->GuardarDeclarante(registro), 2);
        registro[RegDeclarante::CSCO] = ana;
        QCOMPARE(objeto->GuardarDeclarante(registro), 0);
        Filas filas;
        QCOMPARE(objeto->dameResultado(filas, 2, 0), 2);
        QCOMPARE(columna(filas, FilaDeclarante::NOMBRE),
                 (QVariantList{QStringLiteral("EVA"), QStringLiteral("OTRA")}));
    }

    void malFormado_data()
    {
        QTest::addColumn<int>("campo");
        QTest::addColumn<QVariant>("valor");
        QTest::newRow("short") << -1 << QVariant();
        QTest::newRow("negative key") << int(RegDeclarante::CSCO) << QVariant(-1);
        QTest::newRow("number as text")
            << int(RegDeclarante::NUMERO) << QVariant(QStringLiteral("A"));
        QTest::newRow("name as number") << int(RegDeclarante::NOMBRE) << QVariant(5);
        QTest::newRow("province") << int(RegDeclarante::CODPROV) << QVariant(QStringLiteral("2A"));
    }
    void malFormado()
    {
        QFETCH(int, campo);
        QFETCH(QVariant, valor);
        Registro registro
            = ServidorPrueba::registro(QStringLiteral("12345678Z"), QStringLiteral("ANA"));
        if (campo < 0)
            registro.removeLast();
        else
            registro[campo] = valor;
        QVERIFY_EXCEPTION_THROWN(m_servidor->declarantes()->GuardarDeclarante(registro),
                                 std::invalid_argument);
        QCOMPARE(m_servidor->generales(m_servidor->modelo())->NumeroDeclarantes(), 0);
    }

    void borrado()
    {
        const qint32 clave = m_servidor->alta(QStringLiteral("12345678Z"), QStringLiteral("ANA"));
        const auto objeto = m_servidor->declarantes();
        const qint32 CSDE = m_servidor->declaraciones()->Guardar430(
            ServidorPrueba::datos430(clave, 2026, 1, 5.0));
        QVERIFY(CSDE > 0);
        QCOMPARE(falloDe([&] { objeto->BorrarDeclarante(clave); }), Fallo::TieneDeclaraciones);
        QCOMPARE(objeto->ObtenerCodigoDeclarante(QStringLiteral("12345678Z")), clave);
        const auto declaraciones = m_servidor->declaraciones();
        declaraciones->BorrarDatosNoComunes(CSDE, QStringLiteral("430"));
        declaraciones->BorrarDeclaracion(CSDE);
        objeto->BorrarDeclarante(clave);
        QCOMPARE(objeto->ObtenerCodigoDeclarante(QStringLiteral("12345678Z")), 0);
        QCOMPARE(falloDe([&] { objeto->BorrarDeclarante(clave); }), Fallo::NoEncontrado);
        Registro registro{1};
        qint32 otra = clave;
        QCOMPARE(falloDe([&] { objeto->CargarDeclarante(otra, registro); }), Fallo::NoEncontrado);
        QCOMPARE(registro, Registro{1});
    }

    void listas()
    {
        // By name, a reader's order; the identifiers run the other way.
        const QStringList nombres{QStringLiteral("ÁLAVA"), QStringLiteral("ALBA"),
                                  QStringLiteral("ÇEDA"),  QStringLiteral("CIDE"),
                                  QStringLiteral("NZ"),    QStringLiteral("ÑU"),
                                  QStringLiteral("OCA"),   QStringLiteral("ZARA")};
        QStringList dnis;
        for (qsizetype i = 0; i < nombres.size(); ++i) {
            dnis.prepend(QStringLiteral("DNI%1").arg(9 - i));
            m_servidor->alta(dnis.first(), nombres[i]);
        }
        const auto objeto = m_servidor->declarantes();
        Filas filas;
        QCOMPARE(objeto->dameResultado(filas, 2, 0), 8);
        QCOMPARE(QVariant(columna(filas, FilaDeclarante::NOMBRE)).toStringList(), nombres);
        QCOMPARE(filas[0].toList().value(FilaDeclarante::NOMPROV), QStringLiteral("VARLENDA"));
        QCOMPARE(objeto->dameResultado(filas, 1, 10000), 8);
        QCOMPARE(QVariant(columna(filas, FilaDeclarante::DNI)).toStringList(), dnis);
        QCOMPARE(objeto->dameResultadoExportar(filas, 2), 8);
        QCOMPARE(QVariant(columna(filas, RegDeclarante::NOMBRE)).toStringList(), nombres);
        QCOMPARE(filas[3].toList().size(), qsizetype(RegDeclarante::Total));
    }

    void recientes()
    {
        QList<qint32> claves;
        for (int i = 1; i <= 5; ++i)
            claves += m_servidor->alta(QStringLiteral("DNI%1").arg(i), QStringLiteral("N"));
        const auto leer = [&] {
            Filas filas;
            m_servidor->declarantes()->ObtenerUltimosDeclarantes(filas);
            return columna(filas, FilaReciente::CSCO);
        };
        QCOMPARE(leer(), (QVariantList{claves[4], claves[3], claves[2], claves[1]}));
        QVERIFY(m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(claves[0], 2025)));
        QCOMPARE(leer(), (QVariantList{claves[0], claves[4], claves[3], claves[2]}));
        // A refused save changes nothing, the order included.
        m_servidor->declarantes()->GuardarDeclarante(
            ServidorPrueba::registro(QStringLiteral("DNI3"), QStringLiteral("N")));
        QVERIFY(
            !m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(claves[0], 2025)));
        QCOMPARE(leer(), (QVariantList{claves[0], claves[4], claves[3], claves[2]}));
        m_servidor->declarantes()->BorrarDeclarante(claves[4]);
        QCOMPARE(leer(), (QVariantList{claves[0], claves[3], claves[2], claves[1]}));
    }

private:
    std::optional<ServidorPrueba> m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorDeclarantes)
#include "tst_servidor_declarantes.moc"
