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

    /// The whole record, a different value in every field, through both ways of saving.
    void altaCambioYCarga()
    {
        using namespace RegDeclarante;
        const auto objeto = m_servidor->declarantes();
        const auto guardar = [&](Registro registro) {
            QCOMPARE(objeto->GuardarDeclarante(registro), 0);
            qint32 clave = objeto->ObtenerCodigoDeclarante(registro[DNI].toString());
            Registro cargado;
            objeto->CargarDeclarante(clave, cargado);
            registro[CSCO] = clave;
            registro[DNI] = registro[DNI].toString().toUpper();
            registro[NOMBRE] = u"ANA"_s;
            registro[NUM430] = registro[NUM480] = 0.0; // not what the caller said
            QCOMPARE(cargado, registro);
        };
        guardar({0, u"12345678z"_s, u" ana "_s, u"AV"_s, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ'%;?"_s, 7,
                 u"L"_s, u"E"_s, u"P"_s, u"M"_s, u"20"_s, u"20123"_s, u"001"_s, u"PUEBLO"_s,
                 u"943123456"_s, 9.0, 8.0});
        const qint32 clave = objeto->ObtenerCodigoDeclarante(u"12345678Z"_s);
        guardar({clave, u"00000000t"_s, u"ana "_s, u"CL"_s, u"OTRA"_s, 99'999, u"L2"_s, u"E2"_s,
                 u"P2"_s, u"M23"_s, u"01"_s, u"01123"_s, QString(), u"VILLA"_s, u"912345678"_s, 9.0,
                 8.0});
        QCOMPARE(objeto->ObtenerCodigoDeclarante(u"00000000T"_s), clave);
        QCOMPARE(m_servidor->generales(m_servidor->datos())->NumeroDeclarantes(), 1);
        const qint16 todo = 0;
        Filas filas;
        objeto->dameResultado(filas, 1, todo);
        QCOMPARE(filas[0].toList(),
                 (QVariantList{clave, u"00000000T"_s, u"ANA"_s, u"VILLA"_s, u"ÁLAVA"_s, 0.0, 0.0}));
    }

    void duplicados()
    {
        const qint32 ana = m_servidor->alta(u"12345678Z"_s, u"ANA"_s);
        const qint32 eva = m_servidor->alta(u"00000000T"_s, u"EVA"_s);
        Registro registro = ServidorPrueba::registro(u"12345678Z"_s, u"OTRA"_s);
        const auto objeto = m_servidor->declarantes();
        QCOMPARE(objeto->GuardarDeclarante(registro), 1);
        registro[RegDeclarante::CSCO] = eva;
        QCOMPARE(objeto->GuardarDeclarante(registro), 2);
        registro[RegDeclarante::CSCO] = ana;
        QCOMPARE(objeto->GuardarDeclarante(registro), 0);
        Registro sinDni = registro;
        sinDni[RegDeclarante::DNI] = u"  "_s;
        QCOMPARE(objeto->GuardarDeclarante(sinDni), 3);
        Registro cuatroCifras = registro;
        cuatroCifras[RegDeclarante::CODMUN] = u"1001"_s;
        QCOMPARE(objeto->GuardarDeclarante(cuatroCifras), 3);
        Filas filas;
        QCOMPARE(objeto->dameResultado(filas, 2, 0), 2);
        QCOMPARE(columna(filas, FilaDeclarante::NOMBRE), (QVariantList{u"EVA"_s, u"OTRA"_s}));
    }

    void borrado()
    {
        const qint32 clave = m_servidor->alta(u"12345678Z"_s, u"ANA"_s);
        const auto objeto = m_servidor->declarantes();
        const QByteArray huella = objeto->Huella(clave);
        const qint32 CSDE = m_servidor->declaraciones()->Guardar430(
            ServidorPrueba::datos430(clave, 2026, 1, 5.0));
        QVERIFY(CSDE > 0 && !huella.isEmpty() && objeto->Huella(clave + 1).isEmpty());
        QCOMPARE(objeto->Huella(clave), huella); // the counters are none of its business
        QCOMPARE(falloDe([&] { objeto->BorrarDeclarante(clave); }), Fallo::TieneDeclaraciones);
        QCOMPARE(objeto->ObtenerCodigoDeclarante(u"12345678Z"_s), clave);
        const auto declaraciones = m_servidor->declaraciones();
        declaraciones->BorrarDatosNoComunes(CSDE, u"430"_s);
        declaraciones->BorrarDeclaracion(CSDE);
        qint32 otra = clave;
        Registro registro;
        objeto->CargarDeclarante(otra, registro);
        QCOMPARE(registro.mid(RegDeclarante::NUM430), (Registro{0.0, 0.0}));
        objeto->BorrarDeclarante(clave);
        QCOMPARE(objeto->ObtenerCodigoDeclarante(u"12345678Z"_s), 0);
        QCOMPARE(falloDe([&] { objeto->BorrarDeclarante(clave); }), Fallo::SinDeclarante);
        const Registro antes = registro;
        QCOMPARE(falloDe([&] { objeto->CargarDeclarante(otra, registro); }), Fallo::SinDeclarante);
        QCOMPARE(registro, antes);
    }

    void listas()
    {
        // By name, a reader's order; the identifiers run the other way.
        const QStringList nombres = u"ÁLAVA ALBA ÇEDA CIDE NZ ÑU OCA ZARA"_s.split(u' ');
        QStringList dnis;
        for (qsizetype i = 0; i < nombres.size(); ++i) {
            dnis.prepend(u"DNI%1"_s.arg(9 - i));
            m_servidor->alta(dnis.first(), nombres[i]);
        }
        const auto objeto = m_servidor->declarantes();
        Filas filas;
        QCOMPARE(objeto->dameResultado(filas, 2, 0), 8);
        QCOMPARE(QVariant(columna(filas, FilaDeclarante::NOMBRE)).toStringList(), nombres);
        QCOMPARE(filas[0].toList().value(FilaDeclarante::NOMPROV), u"VARLENDA"_s);
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
            claves += m_servidor->alta(u"DNI%1"_s.arg(i), u"N"_s);
        const auto leer = [&] {
            Filas filas;
            m_servidor->declarantes()->ObtenerUltimosDeclarantes(filas);
            return columna(filas, FilaReciente::CSCO);
        };
        QCOMPARE(leer(), (QVariantList{claves[4], claves[3], claves[2], claves[1]}));
        QVERIFY(m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(claves[0], 2025)));
        QCOMPARE(leer(), (QVariantList{claves[0], claves[4], claves[3], claves[2]}));
        // A refused save changes nothing, the order included.
        m_servidor->declarantes()->GuardarDeclarante(ServidorPrueba::registro(u"DNI3"_s, u"N"_s));
        QVERIFY(
            !m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(claves[0], 2025)));
        QCOMPARE(leer(), (QVariantList{claves[0], claves[4], claves[3], claves[2]}));
        m_servidor->declarantes()->BorrarDeclarante(claves[4]);
        QCOMPARE(leer(), (QVariantList{claves[0], claves[3], claves[2], claves[1]}));
    }

    /// A stored identifier, with one that repeats an earlier one of the same set.
    void conjunto()
    {
        using enum ResultadoConjunto::Clase;
        probarConjunto(Existentes::Detenerse, {Nuevo, Incorrecto}, u"UNO VIEJA"_s);
        init();
        probarConjunto(Existentes::Sustituir, {Nuevo, Incorrecto, Sustituido, Sustituido, Nuevo},
                       u"DOS NUEVA TRES"_s);
    }

private:
    void probarConjunto(Existentes existentes, const QList<int> &resultados,
                        const QString &guardados) const
    {
        const qint32 vieja = m_servidor->alta(u"12345678Z"_s, u"VIEJA"_s);
        m_servidor->declaraciones()->Guardar480(ServidorPrueba::datos480(vieja, 2025));
        const auto objeto = m_servidor->declarantes();
        ConjuntoDeclarantes conjunto;
        const auto anadir = [&](std::string_view dni, std::string_view nombre) {
            conjunto.anadir({dni, nombre, "cl", "MAYOR", "00007", "", "", "", "", "20", "20123",
                             "001", "X", "  "});
        };
        anadir("00000001R", "uno");
        anadir("00000002A", "MAL");
        anadir("12345678z", " NUEVA ");
        anadir("00000001R", "DOS");
        anadir("00000003A", "TRES");
        QList<int> obtenidos;
        const auto hechos = objeto->GuardarConjunto(conjunto, 0, 5, existentes, 10000);
        for (const auto &hecho : hechos)
            obtenidos += hecho.clase;
        QCOMPARE(obtenidos, resultados);
        QCOMPARE(hechos[1].hallazgos,
                 QStringList{u"NA-IFK eremua okerra da edo ez du kontrol digiturik"_s});
        Filas lista;
        objeto->dameResultado(lista, 2, 0);
        QCOMPARE(QVariant(columna(lista, FilaDeclarante::NOMBRE)).toStringList().join(u' '),
                 guardados);
        // what is replaced keeps its key and its returns; nothing of a set becomes recent
        qint32 clave = objeto->ObtenerCodigoDeclarante(u"12345678Z"_s);
        QCOMPARE(clave, vieja);
        Registro cargado;
        objeto->CargarDeclarante(clave, cargado);
        QCOMPARE(cargado[RegDeclarante::NUM480].toDouble(), 1.0);
        objeto->ObtenerUltimosDeclarantes(lista);
        QCOMPARE(columna(lista, FilaReciente::CSCO), QVariantList{vieja});
    }

    std::optional<ServidorPrueba> m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorDeclarantes)
#include "tst_servidor_declarantes.moc"
