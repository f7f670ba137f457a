#include "campaign/cImportarDeclaraciones.h"
#include "campaign/cPendientes.h"
#include "core/Csv.h"
#include "core/Importe.h"
#include "support/DeclaracionesPrueba.h"
#include "support/LineasPrueba.h"

#include <QTest>

/// The month of many declarants: what is due, and returns from a sheet.
class TstCampana : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    qint32 m_uno = 0;

    QString hoja(const QByteArray &texto) const
    {
        const QString ruta = m_entorno->ruta(u"hoja.csv"_s);
        lineas::escribir(ruta, texto);
        return ruta;
    }
    /// Each row as "line state amount former column: reason", or why the sheet cannot be read.
    static QString dicho(const cImportarDeclaraciones &leida)
    {
        static constexpr const char *estados[] = {"new", "replaces", "refused", "stored", "lost"};
        QStringList filas;
        for (const auto &f : leida.filas())
            filas += u"%1 %2 %3 %4 %5: %6"_s.arg(f.linea).arg(
                QString::fromLatin1(estados[f.estado]), textoImporte(f.importe),
                textoImporte(f.anterior), f.columna, f.motivo);
        return filas.join(u'\n');
    }
    QString leer(const QByteArray &texto, cImportarDeclaraciones *leida = nullptr) const
    {
        cImportarDeclaraciones propia;
        auto &usada = leida ? *leida : propia;
        const QString motivo = usada.leer(hoja(texto), [](qint64) { return true; });
        return motivo.isEmpty() ? dicho(usada) : motivo;
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_uno = Entorno::altaDeclarante();
        Entorno::altaDeclarante(u"A58818501"_s, u"DOS"_s);
    }

    void csv()
    {
        const auto partes = [](const QByteArray &linea, char separador = ';') {
            const auto campos = csv::partir(linea, separador, 4);
            return campos ? campos->join(u'|') : u"-"_s;
        };
        QCOMPARE(partes("a; b ;;\"c;\"\"d\"\"\""), u"a|b||c;\"d\""_s);
        QCOMPARE(partes("\"1,5\",2", ','), u"1,5|2"_s);
        QCOMPARE(partes(""), QString());
        QCOMPARE(partes("\xd1;\xc3\x91;\x81"), u"Ñ|Ñ|\ufffd"_s); // Windows-1252, UTF-8, neither
        for (const char *mala : {"a;\"b", "\"a\"b;c", "1;2;3;4;5", "\""})
            QCOMPARE(partes(mala), u"-"_s);
        QCOMPARE(csv::linea({u"A;B"_s, u"dice \"no\""_s, u"-5,00"_s, u"=1+1"_s, u"@x"_s, u"-a"_s}),
                 QByteArray("\"A;B\";\"dice \"\"no\"\"\";-5,00;'=1+1;'@x;'-a\r\n"));
    }

    void encabezados()
    {
        for (const auto &[texto, motivo] :
             {std::pair{"", u"Falta la columna «DNI»."_s},
              {"DNI;EJERCICIO;PERIODO", u"Falta la columna «BASE»."_s},
              {"DNI;EJERCICIO;PERIODO;BASES",
               u"La columna «BASES» no es de las que se pueden "
               "importar."_s},
              {"DNI;EJERCICIO;01;03", u"La columna «03» no es de las que se pueden importar."_s},
              {"DNI;EJERCICIO;01;1", u"La columna «1» está repetida."_s},
              {"DNI;EJERCICIO;01;BASE",
               u"La hoja mezcla columnas del modelo 430 y del modelo 480."_s},
              {"\"DNI", u"La primera fila no tiene los nombres de las columnas."_s},
              {"DNI;EJERCICIO;PERIODO;BASE", QString()},
              {"\xef\xbb\xbfNombre,base,zergaldia,Ekitaldia,nif,", QString()}})
            QCOMPARE(leer(texto), motivo);
    }

    /// Every kind of row of a monthly sheet, as it would be typed.
    void filas430()
    {
        guardarDistinta(m_uno, u"430"_s); // January
        QCOMPARE(
            leer("DNI;EJERCICIO;PERIODO;BASE;BASE_RECTIFICACION;CUOTA_RECTIFICACION\r\n"
                 "12345678z;2026;2;1.234,56;;\r\n"
                 "12345678Z;2026;enero;100;-50;-4\r\n"
                 ";;;;;\r\n"
                 "A58818501;2026;13;1;;\r\n"
                 "A58818501;2026;APIRILA;1;0;0\r\n"
                 "A58818501;26x;5;1;;\r\n"
                 "A58818501;;5;1;;\r\n"
                 "A58818501;2026;6;=1+1;;\r\n"
                 "A58818501;2026;7;;;\r\n"
                 "A58818501;2026;8;1;2;\r\n"
                 "00000001R;2026;9;1;;\r\n"
                 ";2026;9;1;;\r\n"
                 "A58818501;2031;9;1;;\r\n"
                 "A58818501;2026;10;1;;;9\r\n"
                 "A58818501;2026;11;\"1;;\r\n"
                 "A58818501;2026;11;1\x01;;\r\n"
                 "A58818501;2026;12;1;;\r\n"
                 "A58818501;2026;12;2;;\r\n"
                 "A58818501;2026;3;9999999999999,99;1;1"),
            u"2 new 98,76 0,00 : \n"
            "3 replaces 4,00 6.666,66 : \n"
            "5 refused 0,00 0,00 PERIODO: «13» no es un mes.\n"
            "6 new 0,08 0,00 : \n"
            "7 refused 0,00 0,00 EJERCICIO: «26x» no es un ejercicio.\n"
            "8 refused 0,00 0,00 EJERCICIO: La casilla Ejercicio debe tener algún valor\n"
            "9 refused 0,00 0,00 BASE: «=1+1» no es un importe.\n"
            "10 refused 0,00 0,00 BASE: «» no es un importe.\n"
            "11 refused 0,00 0,00 CUOTA_RECTIFICACION: La casillas Base imponible y Cuota de "
            "Rectificación no pueden ser 0\n"
            "12 refused 0,00 0,00 DNI: No existe ningún declarante con el DNI-CIF 00000001R.\n"
            "13 refused 0,00 0,00 DNI: Falta el DNI.\n"
            "14 refused 0,00 0,00 EJERCICIO: El ejercicio-periodo no puede ser anterior al "
            "2002-01\n ni posterior al 2030-12\n"
            "15 refused 0,00 0,00 : La fila tiene más columnas que la primera.\n"
            "16 refused 0,00 0,00 : La fila no se puede leer: comillas sin cerrar o caracteres "
            "que no son texto.\n"
            "17 refused 0,00 0,00 : La fila no se puede leer: comillas sin cerrar o caracteres "
            "que no son texto.\n"
            "18 refused 0,00 0,00 DNI: La misma declaración está también en la fila 19.\n"
            "19 refused 0,00 0,00 DNI: La misma declaración está también en la fila 18.\n"
            "20 refused 0,00 0,00 BASE_RECTIFICACION: No se admite el cambio: el total «Base "
            "imponible» tendría más de 13 cifras enteras."_s);
        QCOMPARE(leer("DNI;EJERCICIO;PERIODO;BASE\n" + QByteArray(70'000, 'x')),
                 u"2 refused 0,00 0,00 : La fila es demasiado larga."_s);
    }

    void filas480()
    {
        QCOMPARE(
            leer("DNI,EJERCICIO,01,67,73,76,79,80\n"
                 "12345678Z,2026,\"1.000,00\",500,1500,,5,-10.5\n"
                 "A58818501,2026,1000,,1000,1,,\n"
                 "A58818501,2025,1000,,900,,,\n"
                 "A58818501,2024,x,,,,,\n"
                 "A58818501,2021,600,400,1000,,,\n"
                 "A58818501,2020,9999999999999,9999999999999,1,,,"),
            u"2 new 109,50 0,00 : \n"
            "3 refused 0,00 0,00 76: El ejercicio 2026 tiene un solo tipo impositivo: la "
            "casilla 76 no se rellena.\n"
            "4 refused 0,00 0,00 : La casilla Total No Exento debe ser igual a la suma de las "
            "bases imponibles\n"
            "5 refused 0,00 0,00 01: «x» no es un importe.\n"
            "6 new 80,00 0,00 : \n"
            "7 refused 0,00 0,00 67: No se admite el cambio: el total «Totales» tendría más de 13 "
            "cifras enteras."_s);
    }

    /// What was chosen is stored as if it had been typed; what the session had in hand stays.
    void guardar()
    {
        const qint32 enero = guardarDistinta(m_uno, u"430"_s);
        tomarCabecera(7, u"480"_s, 12);
        cImportarDeclaraciones leida;
        leer("DNI;EJERCICIO;PERIODO;BASE;BASE_RECTIFICACION;CUOTA_RECTIFICACION\n"
             "12345678Z;2026;1;200;-100;-8\n12345678Z;2026;2;1000;;\n12345678Z;2026;3;3;;\n"
             "A58818501;2026;x;\"a;b\";;\nA58818501;2026;4;4;;",
             &leida);
        leida.marcar(2, false);
        QCOMPARE(leida.porGuardar(), 3);
        // deleted meanwhile: the others are stored all the same, unless it is all or nothing
        auto borrado = servicioDeclaracion();
        borrado->BorrarDatosNoComunes(enero, u"430"_s);
        borrado->BorrarDeclaracion(enero);
        auto todas = leida;
        QVERIFY(!todas.guardar(true, [](qint64) { return true; }));
        QCOMPARE(todas.cuantas(FilaDeclaraciones::NoGuardada), 1);
        QCOMPARE(declaracionesDe(m_uno).size(), 0);
        QVERIFY(leida.guardar(false, [](qint64) { return true; }));
        QCOMPARE(dicho(leida).section(u'\n', 0, 1),
                 u"2 lost 8,00 6.666,66 : Otra copia del programa la ha cambiado o eliminado "
                 u"después de leer la hoja.\n"
                 "3 stored 80,00 0,00 : "_s);
        QCOMPARE(unidos(declaracionesDe(m_uno)[0].toList().mid(1)), u"2026|1|2|430|1|8000"_s);
        auto otra = cImportarDeclaraciones();
        leer("DNI;EJERCICIO;PERIODO;BASE\n12345678Z;2026;9;1", &otra);
        QVERIFY(otra.guardar(true, [](qint64) { return true; }));
        QCOMPARE(declaracionesDe(m_uno).size(), 2);
        QCOMPARE(unico::la<cDecResumen>().CSCO(), 7);
        QCOMPARE(unico::la<cDecResumen>().MODELO(), u"480"_s);
        QCOMPARE(leida.csvRechazadas(),
                 QByteArray("\xef\xbb\xbf"
                            "DNI;EJERCICIO;PERIODO;BASE;BASE_RECTIFICACION;CUOTA_RECTIFICACION;"
                            "MOTIVO\r\n"
                            "12345678Z;2026;1;200;-100;-8;Otra copia del programa la ha cambiado o "
                            "eliminado después de leer la hoja.\r\n"
                            "A58818501;2026;x;\"a;b\";;;PERIODO: «x» no es un mes.\r\n"));
    }

    /// Stopped, what was read is dropped, and nothing more is stored.
    void detener()
    {
        QByteArray muchas = "DNI;EJERCICIO;PERIODO;BASE\n";
        for (int i = 0; i < 1200; ++i)
            muchas += "12345678Z;" + QByteArray::number(2003 + i % 27) + ';'
                + QByteArray::number(1 + i / 27 % 12) + ';' + QByteArray::number(i) + '\n';
        cImportarDeclaraciones leida;
        QCOMPARE(leida.leer(hoja(muchas), [](qint64 linea) { return linea < 900; }), QString());
        QVERIFY(leida.filas().isEmpty());
        QByteArray sinRepetir = muchas.left(muchas.indexOf("\n12345678Z;2003;1;324\n") + 1);
        QVERIFY(sinRepetir.size() > 5000);
        for (int i = 0; i < 300; ++i)
            sinRepetir += "A58818501;" + QByteArray::number(2003 + i % 27) + ';'
                + QByteArray::number(1 + i / 27 % 12) + ";1\n";
        leer(sinRepetir, &leida);
        QCOMPARE(leida.porGuardar(), 624);
        QVERIFY(!leida.guardar(false, [](qint64) { return false; }));
        QCOMPARE(leida.porGuardar(), 624);
        QVERIFY(declaracionesDe(m_uno).isEmpty());
    }

    void pendientes()
    {
        QCOMPARE(cPendientes::UltimaTerminada(QDate(2026, 1, 31)).nombre(),
                 u"430 DICIEMBRE 2025"_s);
        QCOMPARE(cPendientes::UltimaTerminada(QDate(2099, 1, 1)).nombre(), u"430 DICIEMBRE 2030"_s);
        for (const auto &[ejercicio, mes] : {std::pair{2019, 1}, {2026, 2}, {2026, 4}})
            Entorno::altaDeclaracion(m_uno, static_cast<qint16>(ejercicio),
                                     static_cast<quint8>(mes));
        cPendientes campana;
        const auto ficha = [](const DeclarantePendiente &f) {
            static constexpr const char *estados[] = {"stored", "due", "earlier"};
            return u"%1 %2 %3 %4"_s
                .arg(f.nombre, QString::fromLatin1(estados[static_cast<int>(f.estado())]))
                .arg(f.faltan.size())
                .arg(textoMeses(
                    f.faltan.mid(f.faltan.size() - std::min<qsizetype>(2, f.faltan.size()))));
        };
        const auto fichas = [&](int mes) {
            campana.CABECERA(2026, mes);
            QStringList textos;
            for (const auto &fila : campana.Cargar()) {
                textos += ficha(fila);
                // one row asked for alone is the same as in the list
                if (ficha(*campana.CargarDeclarante(fila.csco)) != textos.constLast())
                    textos += u"differs"_s;
            }
            return textos.join(u'|');
        };
        // 83 months between January 2019 and February 2026 are more than a row can tell one by one
        QCOMPARE(fichas(2), u"DOS due 0 |SEGUROS UNO stored 84 2025: DICIEMBRE; 2026: ENERO"_s);
        QCOMPARE(fichas(5), u"DOS due 0 |SEGUROS UNO earlier 85 2026: ENERO, MARZO"_s);
        QCOMPARE(fichas(0), u"DOS due 0 |SEGUROS UNO earlier 93 2026: NOVIEMBRE, DICIEMBRE"_s);
        campana.CABECERA(2026, 4);
        QCOMPARE(campana.Plantilla(campana.Cargar()),
                 (std::pair{QByteArray("\xef\xbb\xbf"
                                       "DNI;NOMBRE;EJERCICIO;PERIODO;BASE;BASE_RECTIFICACION;"
                                       "CUOTA_RECTIFICACION\r\nA58818501;DOS;2026;4;;;\r\n"),
                            qsizetype(1)}));
        campana.CABECERA(2026, 0);
        const QByteArray anual = campana.Plantilla(campana.Cargar()).first;
        QVERIFY(anual.startsWith("\xef\xbb\xbf"
                                 "DNI;NOMBRE;EJERCICIO;01;02;04;"));
        QVERIFY(anual.contains(";67;68;73;76;79;80\r\nA58818501;DOS;2026;;;"));
        QCOMPARE(leer(anual).count(u"refused"), 0); // boxes that are empty are 0
    }
};

QTEST_GUILESS_MAIN(TstCampana)
#include "tst_campana.moc"
