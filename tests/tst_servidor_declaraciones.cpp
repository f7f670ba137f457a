#include "support/ServidorPrueba.h"

#include <SQLiteCpp/SQLiteCpp.h>

class TstServidorDeclaraciones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_servidor.emplace();
        QVERIFY(!m_servidor->traspaso());
        m_declarante = m_servidor->alta(u"12345678Z"_s, u"ANA"_s);
        QVERIFY(m_declarante > 0);
    }

    void guardaYCarga()
    {
        const auto objeto = m_servidor->declaraciones();
        const Registro datos430
            = ServidorPrueba::datos430(m_declarante, 2026, 3, 999'999'999'999'999.0);
        const Registro datos480 = ServidorPrueba::datos480(m_declarante, 2026);
        qint32 mensual = objeto->Guardar430(datos430);
        qint32 anual = objeto->Guardar480(datos480);
        QVERIFY(mensual > 0 && anual > 0);
        Registro figuras;
        objeto->Cargar430(mensual, figuras);
        QCOMPARE(figuras, datos430.mid(RegGuardar::Figuras));
        objeto->Cargar480(anual, figuras);
        QCOMPARE(figuras, datos480.mid(RegGuardar::Figuras));
        // each figure in the column that has its box's number
        SQLite::Database base(m_servidor->datos().toStdString());
        SQLite::Statement fila(base, "SELECT * FROM DATOS480");
        QVERIFY(fila.executeStep());
        for (int clase = 0; clase < Reg480::Clases; ++clase)
            for (const int columna : {0, 1})
                QCOMPARE(fila.getColumn(qPrintable(u"C%1"_s.arg(Reg480::casilla(clase, columna), 2,
                                                                10, QChar(u'0'))))
                             .getInt(),
                         Reg480::posicion(clase, columna) + 1);
        QVariantList resto;
        for (const char *nombre :
             {"C70", "C73", "C76", "C79", "C74", "C77", "C75", "C78", "C80", "C81"})
            resto += fila.getColumn(nombre).getInt();
        QCOMPARE(resto, (QVariantList{47, 48, 49, 50, 800, 600, 53, 54, 55, 56}));
        Filas filas;
        QCOMPARE(objeto->dameResultado(filas, m_declarante), 2);
        QCOMPARE(filas[0].toList(),
                 (QVariantList{mensual, 2026, 1, 3, u"430"_s, 1, 999'999'999'999'999.0}));
        QCOMPARE(filas[1].toList(), (QVariantList{anual, 2026, 2, 12, u"480"_s, 2, 56.0}));
        QCOMPARE(contadores(), (QVariantList{1.0, 1.0}));
    }

    /// Of both models, new and replaced; what cannot be stored is left out, or stops it all.
    void conjunto()
    {
        const auto objeto = m_servidor->declaraciones();
        const qint32 otro = m_servidor->alta(u"87654321X"_s, u"BLAS"_s);
        const qint32 vieja
            = objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 1, 5.0));
        Registro mala = ServidorPrueba::datos430(otro, 2026, 4, 1.0);
        mala[RegGuardar::PERIODO] = 13;
        const Filas registros{ServidorPrueba::datos430(m_declarante, 2026, 1, 7.0, vieja),
                              ServidorPrueba::datos480(otro, 2026),
                              mala,
                              ServidorPrueba::datos430(otro, 2026, 2, 3.0),
                              ServidorPrueba::datos430(otro, 2026, 2, 4.0),
                              ServidorPrueba::datos430(999, 2026, 2, 4.0),
                              ServidorPrueba::datos430(otro, 2026, 3, 4.0, 999)};
        QCOMPARE(objeto->GuardarConjunto(registros, true), Registro(7, 0));
        QCOMPARE(importes(), QVariantList{5.0});
        const Registro claves = objeto->GuardarConjunto(registros, false);
        QCOMPARE(claves, (Registro{vieja, vieja + 1, 0, vieja + 2, 0, 0, 0}));
        QCOMPARE(importes(), QVariantList{7.0});
        Registro figuras;
        qint32 anual = claves[1].toInt();
        objeto->Cargar480(anual, figuras);
        QCOMPARE(figuras, ServidorPrueba::datos480(otro, 2026).mid(RegGuardar::Figuras));
        Filas recientes;
        m_servidor->declarantes()->ObtenerUltimosDeclarantes(recientes);
        QCOMPARE(columna(recientes, FilaReciente::DNI),
                 (QVariantList{u"12345678Z"_s, u"87654321X"_s}));

        Filas halladas;
        objeto->Buscar({Registro{u"87654321X"_s, 2026, 2, u"430"_s},
                        Registro{u"87654321x "_s, 2026, 12, u"480"_s},
                        Registro{u"12345678Z"_s, 2026, 2, u"430"_s},
                        Registro{u"A58818501"_s, 2026, 2, u"430"_s}},
                       halladas);
        QCOMPARE(halladas,
                 (Filas{Registro{otro, claves[3], 3.0}, Registro{otro, claves[1], 56.0},
                        Registro{m_declarante, 0, 0.0}, Registro{0, 0, 0.0}}));
    }

    /// Every declarant by name, with what it has of one return and of the months before it.
    void pendientes()
    {
        const auto objeto = m_servidor->declaraciones();
        const qint32 blas = m_servidor->alta(u"87654321X"_s, u"BLAS"_s);
        m_servidor->alta(u"00000001R"_s, u"AARON"_s);
        for (const int mes : {11, 12})
            objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2025, mes, 1.0));
        const qint32 marzo
            = objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 3, 42.0));
        objeto->Guardar430(ServidorPrueba::datos430(blas, 2026, 12, 9.0));
        const qint32 anual = objeto->Guardar480(ServidorPrueba::datos480(blas, 2026));
        const auto recorrer = [&](const QString &modelo, quint8 periodo) {
            Filas filas;
            objeto->RecorrerPendientes(2026, modelo, periodo, [&](const Registro &fila) {
                filas += QVariant(fila);
                return true;
            });
            return filas;
        };
        const auto sin = [](const Registro &estado) {
            return Registro{3, u"00000001R"_s, u"AARON"_s} + estado;
        };
        const int noviembre = 2025 * 12 + 10, diciembre = 2026 * 12 + 11;
        QCOMPARE(recorrer(u"430"_s, 3),
                 (Filas{sin({0, 0.0, 0, 0, 0LL}),
                        Registro{m_declarante, u"12345678Z"_s, u"ANA"_s, marzo, 42.0, noviembre, 2,
                                 0b1100LL},
                        Registro{blas, u"87654321X"_s, u"BLAS"_s, 0, 0.0, diciembre, 0, 0LL}}));
        QCOMPARE(
            recorrer(u"480"_s, 12),
            (Filas{sin({0, 0.0, 0, 0, 0LL}),
                   Registro{m_declarante, u"12345678Z"_s, u"ANA"_s, 0, 0.0, noviembre, 3,
                            0b11001000000000LL},
                   Registro{blas, u"87654321X"_s, u"BLAS"_s, anual, 56.0, diciembre, 1, 1LL}}));
    }

    void cambioYDuplicado()
    {
        const auto objeto = m_servidor->declaraciones();
        qint32 clave = objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 3, 1.0));
        QCOMPARE(objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 3, 2.0)), 0);
        QCOMPARE(objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 4, 2.0, clave)),
                 0);
        QCOMPARE(importes(), QVariantList{1.0});
        const Registro nuevo = ServidorPrueba::datos430(m_declarante, 2026, 3, 7.0, clave);
        QCOMPARE(objeto->Guardar430(nuevo), clave);
        QCOMPARE(importes(), QVariantList{7.0});
        Registro figuras;
        objeto->Cargar430(clave, figuras);
        QCOMPARE(figuras, nuevo.mid(RegGuardar::Figuras));
        QCOMPARE(contadores(), (QVariantList{1.0, 0.0}));
        QCOMPARE(
            objeto->ValidarDatosComunes({2026, 1, 3, 2002, 1, 2030, 12, u"430"_s, m_declarante}),
            5);
        QCOMPARE(falloDe([&] { objeto->Guardar430(ServidorPrueba::datos430(999, 2026, 1, 1.0)); }),
                 Fallo::SinDeclarante);
        QCOMPARE(falloDe([&] {
                     objeto->Guardar430(ServidorPrueba::datos430(m_declarante, 2026, 3, 1.0, 999));
                 }),
                 Fallo::SinDeclaracion);
    }

    void rechazados()
    {
        using namespace RegGuardar;
        const Registro bueno = ServidorPrueba::datos430(m_declarante, 2026, 3, 1.0);
        const int base = int(Figuras) + Reg430::BASELIQ;
        const int total = int(Figuras) + Reg430::CUOTATOT;
        QCOMPARE(m_servidor->declaraciones()->Guardar430(bueno.first(bueno.size() - 1)), 0);
        const QList<int> campos{
            base,    base,   base,         total, total, int(Figuras) + Reg430::TIPOLIQ,
            PERIODO, MODELO, PERIODICIDAD, CSCO};
        const QVariantList malos{1.5, qQNaN(), u"1"_s, qInf(), 1e15, 8.123F, 13, u"480"_s, 2, 0};
        for (qsizetype i = 0; i < campos.size(); ++i) {
            Registro datos = bueno;
            datos[campos[i]] = malos[i];
            QCOMPARE(m_servidor->declaraciones()->Guardar430(datos), 0);
        }
        QCOMPARE(importes(), QVariantList());
    }

    void ultimaYMensuales()
    {
        const auto objeto = m_servidor->declaraciones();
        Registro cabecera{m_declarante};
        qint32 clave = 77;
        QVERIFY(!objeto->ObtenerUltimaDeclaracion(cabecera, clave));
        QCOMPARE(clave, 77);
        const auto guardar430 = [&](int ejercicio, int periodo) {
            return objeto->Guardar430(
                ServidorPrueba::datos430(m_declarante, ejercicio, periodo, 1.0));
        };
        const auto esperar = [&](qint32 guardada, const Registro &comunes) {
            QVERIFY(objeto->ObtenerUltimaDeclaracion(cabecera, clave));
            QCOMPARE(clave, guardada);
            QCOMPARE(cabecera, Registro{m_declarante} + comunes);
        };
        const qint32 anual = objeto->Guardar480(ServidorPrueba::datos480(m_declarante, 2025));
        QVERIFY(guardar430(2024, 11) > 0);
        const qint32 diciembre = guardar430(2025, 12);
        esperar(anual, {2025, 2, 12, u"480"_s, 2});
        const qint32 mayo = guardar430(2025, 5);
        const qint32 enero = guardar430(2026, 1);
        esperar(enero, {2026, 1, 1, u"430"_s, 1});
        Filas filas;
        QVERIFY(m_servidor->declarantes()->ObtListDecl430(filas, 2025, m_declarante));
        QCOMPARE(filas, (Filas{QVariantList{mayo, 5}, QVariantList{diciembre, 12}}));
        QVERIFY(!m_servidor->declarantes()->ObtListDecl430(filas, 2023, m_declarante));
        QVERIFY(filas.isEmpty());
    }

    void borradoEnDosPasos()
    {
        qint32 clave
            = m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(m_declarante, 2025));
        {
            const auto objeto = m_servidor->declaraciones();
            objeto->BorrarDatosNoComunes(clave, u"480"_s);
            QCOMPARE(
                falloDe([&] { m_servidor->generales(m_servidor->datos())->CambiarIdioma(u"E"_s); }),
                Fallo::EnUso);
        }
        Registro figuras;
        m_servidor->declaraciones()->Cargar480(clave, figuras);
        QCOMPARE(figuras.size(), qsizetype(Reg480::Total));
        QCOMPARE(contadores(), (QVariantList{0.0, 1.0}));

        const auto objeto = m_servidor->declaraciones();
        QCOMPARE(falloDe([&] { objeto->BorrarDatosNoComunes(clave, u"430"_s); }),
                 Fallo::SinDeclaracion);
        QVERIFY_EXCEPTION_THROWN(objeto->BorrarDeclaracion(clave), std::logic_error);
        objeto->BorrarDatosNoComunes(clave, u"480"_s);
        objeto->BorrarDeclaracion(clave);
        QCOMPARE(importes(), QVariantList());
        QCOMPARE(contadores(), (QVariantList{0.0, 0.0}));
        QCOMPARE(falloDe([&] { objeto->Cargar480(clave, figuras); }), Fallo::SinDeclaracion);
    }

private:
    QVariantList importes() const
    {
        Filas filas;
        m_servidor->declaraciones()->dameResultado(filas, m_declarante);
        return columna(filas, FilaDeclaracion::IMPORTE);
    }
    QVariantList contadores() const
    {
        Filas filas;
        m_servidor->declarantes()->dameResultado(filas, 1, 0);
        return filas.value(0).toList().mid(FilaDeclarante::NUM430, 2);
    }

    std::optional<ServidorPrueba> m_servidor;
    qint32 m_declarante = 0;
};

QTEST_GUILESS_MAIN(TstServidorDeclaraciones)
#include "tst_servidor_declaraciones.moc"
