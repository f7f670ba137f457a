#include "core/Caracteres.h"
#include "exchange/LectorLineas.h"
#include "exchange/LineaIntercambio.h"
#include "support/LineasPrueba.h"

#include <QBuffer>
#include <QTest>

class TestIntercambioLinea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Every byte and every character, against the code page as it is published.
    void codigos()
    {
        QString pagina;
        for (int i = 0; i < 256; ++i)
            pagina += QChar(i);
        pagina.replace(0x80, 32, QString::fromUtf8("€?‚ƒ„…†‡ˆ‰Š‹Œ?Ž??‘’“”•–—˜™š›œ?žŸ"));
        QCOMPARE(pagina.size(), 256);
        for (int i = 0; i < 256; ++i) {
            const bool hay = i == u'?' || pagina[i] != u'?';
            QCOMPARE(windows1252::caracter(uchar(i)), hay ? pagina[i] : QChar());
        }
        int conByte = 0;
        for (int codigo = 0; codigo <= 0xFFFF; ++codigo) {
            const auto byte = windows1252::byte(QChar(codigo));
            conByte += byte ? 1 : 0;
            if (byte)
                QCOMPARE(windows1252::caracter(*byte).unicode(), codigo);
        }
        QCOMPARE(conByte, 251);
    }

    void escribir()
    {
        Registro registro{5,       u"12345678Z"_s, u"IBÁÑEZ"_s, u"AV"_s, QString(31, u'Ç'),
                          0,       QString(),      u"1"_s,      u"2"_s,  u"DCHA"_s,
                          u"01"_s, u"01005"_s,     QString(),   u"Á"_s,  QString(),
                          12.0,    1234567.0};
        QByteArray linea("x");
        QVERIFY(!intercambio::escribirLinea(linea, registro));
        QCOMPARE(linea,
                 "x12345678Z"
                     + QByteArray("IB\xC1\xD1"
                                  "EZ")
                           .leftJustified(40)
                     + "AV" + QByteArray(30, '\xC7') + "00000" + "  1 2 DCH" + "0101005000"
                     + QByteArray("\xC1").leftJustified(25) + QByteArray(9, ' ')
                     + "00000121234567\r\n");
        registro[RegDeclarante::TELEFONO] = u"000000000"_s;
        registro[RegDeclarante::NUMERO] = 99999;
        linea.clear();
        QVERIFY(!intercambio::escribirLinea(linea, registro));
        QCOMPARE(linea.sliced(81, 5), "99999");
        QCOMPARE(linea.sliced(130, 9), QByteArray(9, ' '));
        registro[RegDeclarante::NOMMUN] = u"\u0100"_s;
        QCOMPARE(intercambio::escribirLinea(linea, registro), QChar(0x100));
        QCOMPARE(linea.size(), 155);
    }

    void leer()
    {
        const QString nombre = u"Ñandú"_s.leftJustified(40);
        Registro registro;
        QVERIFY(!intercambio::leerLinea(lineas::linea(12345678,
                                                      "\xD1"
                                                      "and\xFA")
                                            + "\x81 more",
                                        registro));
        QCOMPARE(registro,
                 (Registro{0, u"12345678Z"_s, nombre, u"CL"_s, u"MAYOR"_s.leftJustified(30),
                           u"00007"_s, u"A "_s, u"1 "_s, u"2 "_s, u"DCH"_s, u"20"_s, u"20123"_s,
                           u"001"_s, u"ABRENZUOLA"_s.leftJustified(25), u"943123456"_s, 0.0, 0.0}));
    }

    void caracteres_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("caracter"); // -1: taken
        for (const char letra : {'A', 'z', ' ', '9', '\xF1', '\xE7', '\xDA', '\xAA', '\xBF', '_'})
            QTest::newRow(QByteArray::number(uchar(letra), 16)) << int(uchar(letra)) << -1;
        for (const char letra : {'@', '\'', '"', '\xDF', '\xFF', '\xB5', '\xC3'})
            QTest::newRow(QByteArray::number(uchar(letra), 16))
                << int(uchar(letra)) << int(uchar(letra));
        QTest::newRow("euro") << 0x80 << 0x20AC;
        for (const int byte : {0x00, 0x09, 0x1A, 0x1B, 0x7F, 0x81, 0x9D, 0xAD})
            QTest::newRow(QByteArray::number(byte, 16)) << byte << 0;
    }
    void caracteres()
    {
        QFETCH(int, byte);
        QFETCH(int, caracter);
        QByteArray linea = lineas::linea(1);
        linea[152] = char(byte);
        Registro registro;
        const auto malo = intercambio::leerLinea(linea, registro);
        QCOMPARE(registro.isEmpty(), caracter >= 0);
        QCOMPARE(malo.has_value(), caracter >= 0);
        if (malo) {
            QCOMPARE(malo->columna, 153);
            QCOMPARE(int(malo->byte), byte);
            QCOMPARE(int(malo->caracter.unicode()), caracter);
        }
    }

    void formato()
    {
        QCOMPARE(intercambio::descripcionFormato().join(u"\r\n"_s).toLatin1() + "\r\n",
                 lineas::formato());
    }

    void lectura_data()
    {
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<QByteArrayList>("leidas");
        const auto caso = [](const char *nombre, const QByteArray &contenido, QByteArrayList ls) {
            QTest::newRow(nombre) << contenido << ls;
        };
        caso("nothing", "", {});
        caso("one", "ab\r\n", {"ab"});
        caso("no end", "ab\r\ncd", {"ab", "cd"});
        caso("LF", "ab\ncd\n", {"ab", "cd"});
        caso("CR", "ab\rcd\r", {"ab", "cd"});
        caso("mixed", "a\r\r\n\nb\n\rc", {"a", "", "", "b", "", "c"});
        caso("cut", "abcdefg\r\n", {"abcde"});
        caso("zero byte", QByteArray("a\0b\r\n", 5), {QByteArray("a\0b", 3)});
        // line ends about the edges of what is read at once
        for (int sobra = -2; sobra <= 1; ++sobra)
            caso(qPrintable(u"edge %1"_s.arg(sobra)),
                 "x\r\n" + QByteArray(64 * 1024 - 3 + sobra, 'y') + "\r\nz\r\n",
                 {"x", "yyyyy", "z"});
    }
    void lectura()
    {
        QFETCH(QByteArray, contenido);
        QFETCH(QByteArrayList, leidas);
        QBuffer fichero(&contenido);
        QVERIFY(fichero.open(QIODevice::ReadOnly));
        LectorLineas lector(fichero, 5);
        QByteArrayList obtenidas;
        while (lector.siguiente())
            obtenidas += lector.linea().toByteArray();
        QCOMPARE(obtenidas, leidas);
        QCOMPARE(lector.numero(), leidas.size());
    }
};

QTEST_GUILESS_MAIN(TestIntercambioLinea)
#include "tst_intercambio_linea.moc"
