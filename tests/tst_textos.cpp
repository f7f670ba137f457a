#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "resources/TablaMensajes.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

static QSet<QString> huecos(const QString &texto)
{
    static const QRegularExpression hueco(u"%[0-9]"_s);
    QSet<QString> hallados;
    for (auto i = hueco.globalMatch(texto); i.hasNext();)
        hallados.insert(i.next().captured());
    return hallados;
}

class TstTextos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fijarIdioma(Idioma::Castellano); }
    void cleanupTestCase() { fijarIdioma(Idioma::Castellano); }

    void numeros()
    {
        QSet<int> deLaTabla;
        for (const Mensaje &mensaje : tablaMensajes()) {
            if (mensaje.numero <= 325)
                deLaTabla.insert(mensaje.numero);
            QVERIFY2(mensaje.numero <= 325 || mensaje.numero > 1000, qPrintable(mensaje.nombre));
        }
        QCOMPARE(deLaTabla.size(), 223);
        QCOMPARE(*std::ranges::min_element(deLaTabla), 101);
        QCOMPARE(*std::ranges::max_element(deLaTabla), 325);
        const auto repetido = std::ranges::adjacent_find(tablaMensajes(), std::ranges::equal_to(),
                                                         &Mensaje::numero);
        QVERIFY2(repetido == tablaMensajes().end(), qPrintable(repetido->nombre));
    }

    /// No line of the tables is passed over.
    void completos()
    {
        qsizetype lineas = 0;
        for (const auto &nombre : {u":/textos/mensajes.txt"_s, u":/textos/textos_propios.txt"_s}) {
            QFile fichero(nombre);
            QVERIFY(fichero.open(QIODevice::ReadOnly));
            for (const QByteArray &linea : fichero.readAll().split('\n'))
                lineas += !linea.isEmpty() && !linea.startsWith('#');
        }
        QCOMPARE(tablaMensajes().size(), lineas);
        for (const Mensaje &mensaje : tablaMensajes()) {
            QVERIFY2(!mensaje.castellano.trimmed().isEmpty(), qPrintable(mensaje.nombre));
            QVERIFY2(!mensaje.euskera.trimmed().isEmpty(), qPrintable(mensaje.nombre));
            QCOMPARE(textoMensaje(mensaje.numero, Idioma::Castellano), mensaje.castellano);
            QCOMPARE(textoMensaje(mensaje.numero, Idioma::Euskera), mensaje.euskera);
        }
    }

    /// The wording that is fixed stands once more in a list of its own.
    void redaccionFija()
    {
        QFile fichero(QStringLiteral(OSTREL_REFERENCIAS "/textos.txt"));
        QVERIFY(fichero.open(QIODevice::ReadOnly));
        int comparados = 0;
        for (const QString &linea :
             QString::fromUtf8(fichero.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList campos = linea.split(u'|');
            if (linea.startsWith(u'#'))
                continue;
            QCOMPARE(campos.size(), 3);
            const int numero = campos[0].toInt();
            QCOMPARE(textoMensaje(numero, Idioma::Castellano), campos[1]);
            if (!campos[2].isEmpty())
                QCOMPARE(textoMensaje(numero, Idioma::Euskera), campos[2]);
            ++comparados;
        }
        QVERIFY(comparados > 180);
    }

    void huecosIguales()
    {
        for (const Mensaje &mensaje : tablaMensajes())
            QVERIFY2(huecos(mensaje.castellano) == huecos(mensaje.euskera),
                     qPrintable(mensaje.nombre));
        // a value that looks like a placeholder stays as it is
        QCOMPARE(msj(Msj::CliDeclaranteAlta, u"%2"_s, u"X"_s),
                 u"Declarante dado de alta: %2 - X"_s);
    }

    /// Qt's own texts: English, Castilian, Basque, the same placeholders in all.
    void textosDeQt()
    {
        QFile fichero(u":/textos/textos_qt.txt"_s);
        QVERIFY(fichero.open(QIODevice::ReadOnly));
        QSet<QString> vistos;
        const QStringList lineas
            = QString::fromUtf8(fichero.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &linea : lineas) {
            if (linea.startsWith(u'#'))
                continue;
            const QStringList campos = linea.split(u'|');
            QVERIFY2(campos.size() == 3 && !campos.contains(QString()), qPrintable(linea));
            QVERIFY2(huecos(campos[0]) == huecos(campos[1])
                         && huecos(campos[0]) == huecos(campos[2]),
                     qPrintable(linea));
            QVERIFY2(!vistos.contains(campos[0]), qPrintable(linea));
            vistos.insert(campos[0]);
        }
        QVERIFY(vistos.contains(u"File &name:"_s));
    }

    void idiomas()
    {
        QCOMPARE(msjDesde(Msj::ErrorDni, 1), u"La casilla Razón Social debe tener algún valor"_s);
        QCOMPARE(msj(Msj::ErrorDni, Idioma::Euskera),
                 u"NA-IFK eremua okerra da edo ez du kontrol digiturik"_s);
        fijarIdioma(Idioma::Euskera);
        QCOMPARE(elegir(u"sí"_s, u"bai"_s), u"bai"_s);
        QCOMPARE(msj(Msj::RamoVida), u"Bizi aseguruak"_s);
        QCOMPARE(palabraPeriodicidad(PeriodicidadAnual), u"URTEKOA"_s);
        QCOMPARE(textoPeriodo(PeriodicidadMensual, 2), u"OTSAILA"_s);
    }

    /// Each failure by its own sentence.
    void fallos()
    {
        using enum Msj;
        const QList<Msj> debidos{FalloNoExiste,       FalloDanada,
                                 FalloAjena,          FalloMasNueva,
                                 FalloEnUso,          FalloSinEspacio,
                                 FalloSoloLectura,    FalloLecturaEscritura,
                                 FalloEnlaceRoto,     FalloLectura,
                                 FalloIncompleta,     FalloRestriccion,
                                 FalloTiposDeMas,     FalloSinDeclarante,
                                 FalloSinDeclaracion, FalloNoEsFichero,
                                 FalloEsElPropio,     AvisoTieneDeclaraciones,
                                 FalloRegistroDanado};
        for (int i = 0; i < debidos.size(); ++i) {
            const bool deUnaFila
                = debidos[i] == FalloSinDeclarante || debidos[i] == FalloSinDeclaracion;
            QCOMPARE(textoFallo(ErrorDatos(Fallo(i), u"x"_s)),
                     msj(debidos[i], deUnaFila ? u" «x»"_s : u"x"_s));
        }
    }

    void meses()
    {
        for (const auto &[idioma, nombres] :
             {std::pair{Idioma::Castellano,
                        u"ENERO FEBRERO MARZO ABRIL MAYO JUNIO JULIO AGOSTO SEPTIEMBRE OCTUBRE "
                        "NOVIEMBRE DICIEMBRE"_s},
              {Idioma::Euskera,
               u"URTARRILA OTSAILA MARTXOA APIRILA MAIATZA EKAINA UZTAILA ABUZTUA IRAILA URRIA "
               "AZAROA ABENDUA"_s}}) {
            fijarIdioma(idioma);
            QStringList lista;
            for (int mes = 1; mes <= 12; ++mes)
                lista += nombreMes(mes);
            QCOMPARE(lista.join(u' '), nombres);
        }
        QCOMPARE(nombreMes(0) + nombreMes(13) + nombreMes(-1), QString());
        QCOMPARE(palabraPeriodicidad(PeriodicidadMensual), QString());
    }
};

QTEST_APPLESS_MAIN(TstTextos)
#include "tst_textos.moc"
