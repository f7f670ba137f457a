#include "core/Caracteres.h"
#include "core/LectorLineas.h"
#include "exchange/LineaIntercambio.h"
#include "support/LineasPrueba.h"

#include <QBuffer>
#include <QTest>

class TstIntercambioLinea : public QObject
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
        ConjuntoDeclarantes conjunto;
        QVERIFY(!intercambio::leerLinea(lineas::linea(12345678,
                                                      "\xD1"
                                                      "and\xFA")
                                            + "\x81 more",
                                        conjunto));
        QCOMPARE(lineas::textos(conjunto),
                 (QStringList{u"12345678Z"_s, nombre, u"CL"_s, u"MAYOR"_s.leftJustified(30),
                              u"00007"_s, u"A "_s, u"1 "_s, u"2 "_s, u"DCH"_s, u"20"_s, u"20123"_s,
                              u"001"_s, u"ABRENZUOLA"_s.leftJustified(25), u"943123456"_s}));
    }

    void caracteres()
    {
        // byte of the line, the character told; -1: it is taken
        QList<std::pair<int, int>> casos{{0x80, 0x20AC}};
        for (const int byte : {int('A'), 0x7A, 0x20, 0x39, 0xF1, 0xE7, 0xDA, 0xAA, 0xBF, 0x5F})
            casos += {byte, -1};
        for (const int byte : {int('@'), int('\''), int('"'), 0xDF, 0xFF, 0xB5, 0xC3})
            casos += {byte, byte};
        for (const int byte : {0x00, 0x09, 0x1A, 0x1B, 0x7F, 0x81, 0x9D, 0xAD})
            casos += {byte, 0};
        for (const auto &[byte, caracter] : std::as_const(casos)) {
            QByteArray linea = lineas::linea(1);
            linea[152] = char(byte);
            ConjuntoDeclarantes conjunto;
            const auto malo = intercambio::leerLinea(linea, conjunto);
            QVERIFY2(conjunto.size() == (caracter < 0), linea);
            const QList<int> dicho = malo
                ? QList<int>{malo->columna, malo->byte, malo->caracter.unicode()}
                : QList<int>{};
            QCOMPARE(dicho, caracter < 0 ? QList<int>{} : (QList<int>{153, byte, caracter}));
        }
    }

    void formato()
    {
        QCOMPARE(intercambio::descripcionFormato().join(u"\r\n"_s).toLatin1() + "\r\n",
                 lineas::formato());
    }

    void lectura()
    {
        const auto leer = [](QByteArray contenido, const QByteArrayList &esperadas) {
            QBuffer fichero(&contenido);
            QVERIFY(fichero.open(QIODevice::ReadOnly));
            LectorLineas lector(fichero, 5);
            QByteArrayList obtenidas;
            while (lector.siguiente())
                obtenidas += lector.linea().toByteArray();
            QCOMPARE(obtenidas, esperadas);
            QCOMPARE(lector.numero(), esperadas.size());
        };
        leer("", {});
        leer("ab\r\n", {"ab"});
        leer("ab\r\ncd", {"ab", "cd"});
        leer("ab\ncd\n", {"ab", "cd"});
        leer("ab\rcd\r", {"ab", "cd"});
        leer("a\r\r\n\nb\n\rc", {"a", "", "", "b", "", "c"});
        leer("abcdefg\r\n", {"abcde"});
        leer(QByteArray("a\0b\r\n", 5), {QByteArray("a\0b", 3)});
        // line ends about the edges of what is read at once
        for (int sobra = -2; sobra <= 1; ++sobra)
            leer("x\r\n" + QByteArray(64 * 1024 - 3 + sobra, 'y') + "\r\nz\r\n",
                 {"x", "yyyyy", "z"});
    }
};

QTEST_GUILESS_MAIN(TstIntercambioLinea)
#include "tst_intercambio_linea.moc"
