#include "server/ValidacionDeclarante.h"
#include "support/ServidorPrueba.h"

class TstServidorValidacion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(!m_servidor.traspaso()); }

    void nif()
    {
        for (const char *bueno : {"12345678Z", "X1234567L", "Y1234567X", "Z1234567R", "K1234567L",
                                  "A58818501", "Q2826000H", "G58818501", "G5881850A"})
            QVERIFY2(servidor::nifValido(bueno), bueno);
        for (const char *malo : {"", "12345678", "12345678A", "123456789", "1234567AZ", "12345678z",
                                 "A5881850A", "A58818502", "Q28260008", "I58818501", "Ñ58818501",
                                 "12345678ZZ", "X123 567L", "-1234567L", "12A45678G", "12A45678N"})
            QVERIFY2(!servidor::nifValido(malo), malo);
    }

    void declarante()
    {
        using namespace RegValidacion;
        const auto objeto = servicio::crear<SvrOstr::cDeclarante>();
        // a field, its values "value>code of the rule"
        for (const auto &[campo, valores] :
             {std::pair{DNI, u"12345678Z>0|12345678A>1|X1234567L>0"_s},
              {NOMBRE, u"  >2"_s},
              {DOMICILIO, u">3"_s},
              {CODPROV, u">4|53>4|31>5"_s},
              {CODPOS, u"2012>6|2012A>6|20000>7|31000>5|00000>8"_s},
              {CODMUN, u">9|000>9|0001>9"_s},
              {NOMMUN, u">10"_s},
              {TELEFONO, u"94312345>11|>12"_s}})
            for (const QString &caso : valores.split(u'|')) {
                Registro datos = validacion();
                datos[campo] = caso.section(u'>', 0, 0);
                QVERIFY2(objeto->ValidarDatosDeclarante(datos) == caso.section(u'>', 1).toInt(),
                         qPrintable(QString::number(campo) + u' ' + caso));
            }
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
        QCOMPARE(columna(objeto->ValidarDatosImportar(registro, 10000), 0),
                 (QVariantList{u"Ez dago horrelako bide motarik"_s,
                               u"Ez dago horrelako udalerri koderik"_s}));
        registro[NUMERO] = u"100000"_s;
        registro[CODPROV] = u"100"_s;
        QVERIFY(columna(objeto->ValidarDatosImportar(registro, 0), 0)
                    .contains(u"El número de la calle debe ser un número."_s));
        registro[NUMERO] = u"1"_s;
        registro[CODPROV] = u"20"_s;
        registro[CODMUN] = u"001"_s;
        QCOMPARE(columna(objeto->ValidarDatosImportar(registro, 10000), 0),
                 QVariantList{u"Ez dago horrelako bide motarik"_s});
    }

    void cabecera()
    {
        const auto objeto = m_servidor.declaraciones();
        // exercise, period, model, code of the rule; the bounds are 2002-3 and 2030-10
        for (const QString &caso :
             u"2026 1 430 0|2002 3 430 0|2026 12 480 0|2030 10 430 0|0 0  1|2026 0  2|2026 1  3|"
             "2002 2 430 4|2030 11 430 4|2026 13 430 4|-1 5 430 4|2026 5 480 2"_s.split(u'|')) {
            const QStringList partes = caso.split(u' ');
            const int codigo = partes[3].toInt();
            Registro datos{partes[0].toInt(),
                           partes[2] == u"480" ? 2 : 1,
                           partes[1].toInt(),
                           2002,
                           3,
                           2030,
                           10};
            QVERIFY2(objeto->EjerPerValidos(datos) == (codigo == 0 || codigo == 3),
                     qPrintable(caso));
            datos += QVariantList{partes[2], 1};
            QVERIFY2(objeto->ValidarDatosComunes(datos) == codigo, qPrintable(caso));
        }
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
