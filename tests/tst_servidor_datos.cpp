#include "support/ServidorPrueba.h"

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
        const auto objeto = m_servidor->generales(m_servidor->datos());
        QCOMPARE(objeto->ObtenerIdioma(), QString());
        QCOMPARE(objeto->ObtenerActOnline(), 0);
        objeto->CambiarIdioma(u"E"_s);
        QCOMPARE(objeto->ObtenerIdioma(), u"E"_s);
        objeto->CambiarIdioma(u"otro"_s);
        QCOMPARE(objeto->ObtenerIdioma(), u"C"_s);
        objeto->GuardarActOnline(-1);
        QCOMPARE(objeto->ObtenerActOnline(), -1);
        Registro limites;
        m_servidor->generales(m_servidor->lectura())->DameEjerPerMinMax(limites);
        QCOMPARE(limites, (Registro{2002, 2030, 1, 12}));
    }

    void tipos()
    {
        SQLite::Database(m_servidor->lectura().toStdString(), SQLite::OPEN_READWRITE)
            .exec("INSERT INTO T09_TIPOS VALUES (202707, 915)");
        const auto objeto = m_servidor->generales(m_servidor->lectura());
        // exercise, period, the month's rate, the year's
        for (const auto &[ejercicio, periodo, mensual, anuales] :
             {std::tuple{1996, 12, 0.0F, Registro{0.0F}},
              {1997, 1, 4.0F, {4.0F}},
              {2020, 12, 6.0F, {6.0F}},
              {2021, 1, 8.0F, {8.0F}},
              {2027, 6, 8.0F, {8.0F, 9.15F}},
              {2027, 7, 9.15F, {8.0F, 9.15F}},
              {2028, 1, 9.15F, {9.15F}}}) {
            QCOMPARE(objeto->ObtenerTipoImpositivo(qint16(ejercicio), quint8(periodo)), mensual);
            Registro tipos;
            objeto->ObtenerTipoAnual(tipos, qint16(ejercicio));
            QCOMPARE(tipos, anuales);
        }
    }

    /// More rates than an annual return has bands are told, none is dropped.
    void tiposDeMas()
    {
        SQLite::Database(m_servidor->lectura().toStdString(), SQLite::OPEN_READWRITE)
            .exec("INSERT INTO T09_TIPOS VALUES (202703, 900), (202707, 915)");
        const auto objeto = m_servidor->generales(m_servidor->lectura());
        Registro tipos{1.0F};
        QCOMPARE(falloDe([&] { objeto->ObtenerTipoAnual(tipos, 2027); }), Fallo::TiposDeMas);
        QCOMPARE(tipos, Registro{1.0F});
    }

    void nombres()
    {
        const auto objeto = m_servidor->generales(m_servidor->lectura());
        QString nombre;
        objeto->ObtenerNombreProvincia(u"20"_s, nombre, 10000);
        QCOMPARE(nombre, u"VARLENDA"_s);
        objeto->ObtenerNombreProvincia(u"99"_s, nombre, 0);
        QCOMPARE(nombre, QString());
        objeto->ObtenerNombreMunicipio(u"001"_s, nombre);
        QCOMPARE(nombre, u"ABRENZUOLA"_s);
    }

    void listasEnOrdenDeLectura()
    {
        const auto objeto = m_servidor->generales(m_servidor->lectura());
        Filas filas;
        objeto->CargarProvincias(ListasSql::Provincias[0].toString(), filas);
        QCOMPARE(filas.size(), 52);
        const QVariantList nombres = columna(filas, 1);
        QVERIFY(nombres.indexOf(u"ÁLAVA"_s) < nombres.indexOf(u"BURGOS"_s));
        QVERIFY(nombres.indexOf(u"VARLENDA"_s) > nombres.indexOf(u"BURGOS"_s));
        QCOMPARE(nombres.last(), u"ZARAGOZA"_s);
        objeto->CargarMunicipios(ListasSql::Municipios[0].toString(), filas);
        QVERIFY(columna(filas, 1).contains(u"ABRENZUOLA"_s));
        objeto->CargarVias(ListasSql::Vias[1].toString(), filas);
        QVERIFY(columna(filas, 0).contains(u"CL"_s));
    }

    void hacienda()
    {
        const auto objeto = servicio::crear<SvrKtComunLib::cMiscelaneos>();
        QCOMPARE(objeto->HaciendaFiscalidad(), u"Departamento de Hacienda y Finanzas"_s);
        objeto->Idioma(10000);
        QCOMPARE(objeto->HaciendaFiscalidad(), u"Ogasun eta Finantza Saila"_s);
        objeto->Idioma(1000);
        QCOMPARE(objeto->HaciendaFiscalidad(),
                 u"Ogasun eta Finantza Saila\nDepartamento de Hacienda y Finanzas"_s);
    }

private:
    std::optional<ServidorPrueba> m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorDatos)
#include "tst_servidor_datos.moc"
