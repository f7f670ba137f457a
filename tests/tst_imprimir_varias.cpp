#include "campaign/FrmImprimirVarias.h"
#include "campaign/FrmPendientes.h"
#include "campaign/cPendientes.h"
#include "printing/TrabajoImpresion.h"
#include "support/LineasPrueba.h"
#include "support/ListaAbierta.h"
#include "widgets/Ficheros.h"

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>

#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

using impresionVarias::SiExiste;

/// Bytes that the disk still takes; below 0 it has no end.
static qint64 Espacio = -1;
/// Takes the place of the system's.
extern "C" ssize_t write(int descriptor, const void *datos, size_t bytes)
{
    if (Espacio >= 0 && descriptor > 2) {
        if (Espacio == 0) {
            errno = ENOSPC;
            return -1;
        }
        bytes = std::min(bytes, static_cast<size_t>(Espacio));
        Espacio -= static_cast<qint64>(bytes);
    }
    return syscall(SYS_write, descriptor, datos, bytes);
}

static cImprimirVarias &varias()
{
    return unico::la<cImprimirVarias>();
}

static QString nombre(int numero)
{
    return u"430_2025-03_%1_AD.pdf"_s.arg(lineas::dni(numero));
}

static int paginas(const QString &ruta)
{
    static const QRegularExpression cuenta("/Count (\\d+)"_L1);
    return cuenta.match(QString::fromLatin1(lineas::leer(ruta))).captured(1).toInt();
}

/// Four declarants with the 430 of March 2025 stored, handed over to be printed for the
/// administration.
struct Guardadas
{
    Guardadas()
    {
        for (int i = 1; i <= 4; ++i) {
            claves += Entorno::altaDeclarante(lineas::dni(i), u"SEGUROS %1"_s.arg(i));
            Entorno::altaDeclaracion(claves.last(), 2025, 3);
        }
        auto &campana = unico::la<cPendientes>();
        campana.CABECERA(2025, 3);
        varias().Pedir(campana.ParaImprimir(campana.Cargar()));
        varias().PETICION().PedirOficial();
        varias().PETICION().COPIAINT({});
        varias().PETICION().FECHAPRE(20250420);
    }
    /// Somebody deletes one of them meanwhile.
    void borrar(int numero)
    {
        cDecResumen otra;
        otra.CSCO(claves[numero - 1]);
        otra.BorrarDeclaracion(otra.CargarDeclaraciones().first());
    }
    /// What became of each: "1" made, else the beginning of why not.
    static QString resultado(qsizetype letras = 22)
    {
        QStringList partes;
        for (const auto &fila : varias().filas())
            partes += fila.estado == FilaImprimir::Hecha ? u"1"_s : fila.motivo.left(letras);
        return partes.join(u'|');
    }
    static QStringList hechos(const QDir &carpeta)
    {
        return carpeta.entryList(QDir::Files | QDir::Hidden);
    }

    QList<qint32> claves;
};

static bool seguirSiempre(qint64)
{
    return true;
}

/// Many returns printed in one go.
class TstImprimirVarias : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_guardadas.emplace();
        m_destino.emplace();
        Espacio = -1;
    }
    void cleanup() { ficheros::observar({}); }

    /// One deleted meanwhile, one whose file is the program's, one that came after the question.
    void enCarpeta()
    {
        const QDir carpeta(m_destino->path());
        m_guardadas->borrar(2);
        QVERIFY(QFile::link(rutas().datos, carpeta.filePath(nombre(3))));
        lineas::escribir(carpeta.filePath(nombre(4)), "antes");
        QCOMPARE(varias().MirarExistentes(carpeta.path()), 2);
        lineas::escribir(carpeta.filePath(nombre(1)), "llegado");
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(7, u"X"_s, u"OTRO"_s);
        QList<qint64> pasos;
        const auto seguir = [&](qint64 cual) {
            pasos += cual;
            return true;
        };
        const QByteArray base = lineas::leer(rutas().datos);
        QCOMPARE(
            impresionVarias::enCarpeta(varias(), carpeta.path(), SiExiste::SustituirVistos, seguir),
            QString());
        QCOMPARE(pasos, QList<qint64>({1, 2, 3, 4}));
        const QString propio = carpeta.filePath(nombre(3));
        QCOMPARE(Guardadas::resultado(200),
                 u"El fichero «%1» ya existe y no se ha sustituido.|"
                 "La declaración «%2 430 MARZO 2025» ya no está entre los datos guardados.|"
                 "%3|1"_s.arg(carpeta.filePath(nombre(1)), lineas::dni(2),
                              msj(Msj::FicheroDelPrograma, propio)));
        QCOMPARE(lineas::leer(rutas().datos), base);
        QCOMPARE(lineas::leer(carpeta.filePath(nombre(1))), QByteArray("llegado"));
        QCOMPARE(varias().filas()[3].fichero, carpeta.filePath(nombre(4)));
        QCOMPARE(paginas(varias().filas()[3].fichero), 1);
        QCOMPARE(Guardadas::hechos(carpeta), QStringList({nombre(1), nombre(3), nombre(4)}));
        // the session's records are lent
        QCOMPARE(unidos({cabecera.CSCO(), cabecera.DNI(), unico::la<cImOf>().MODELO()}), u"7|X|"_s);
        // both copies go into one file, which is called so
        varias().PETICION().PedirOficial();
        QVERIFY(impresionVarias::enCarpeta(varias(), carpeta.path(), SiExiste::Dejar, seguirSiempre)
                    .isEmpty());
        QCOMPARE(varias().cuantas(FilaImprimir::Hecha), 3);
        QCOMPARE(paginas(carpeta.filePath(nombre(1).replace(u"AD"_s, u"AD-IT"_s))), 2);
    }

    void detenidaYDiscoLleno()
    {
        const QDir carpeta(m_destino->path());
        QVERIFY(
            impresionVarias::enCarpeta(varias(), carpeta.path(), SiExiste::Dejar, [](qint64 cual) {
                return cual < 3;
            }).isEmpty());
        QCOMPARE(Guardadas::resultado(8), u"1|1|Detenido|Detenido"_s);
        QCOMPARE(Guardadas::hechos(carpeta), QStringList({nombre(1), nombre(2)}));
        Espacio = QFileInfo(carpeta.filePath(nombre(1))).size() * 5 / 2;
        const QString motivo = impresionVarias::enCarpeta(varias(), carpeta.path(),
                                                          SiExiste::Sustituir, seguirSiempre);
        Espacio = -1;
        QCOMPARE(motivo, msj(Msj::FalloSinEspacio, carpeta.filePath(nombre(3))));
        QCOMPARE(Guardadas::resultado(8), u"1|1|No queda|Detenido"_s);
        QCOMPARE(Guardadas::hechos(carpeta), QStringList({nombre(1), nombre(2)}));
    }

    /// One PDF with all: whole, or the old one stays and there is nothing beside it.
    void enFichero()
    {
        const QDir carpeta(m_destino->path());
        QCOMPARE(varias().nombreConjunto(), u"430_2025-03_AD.pdf"_s);
        const QString ruta = carpeta.filePath(varias().nombreConjunto());
        lineas::escribir(ruta, "antes");
        const auto probar = [&](const QString &donde, qint64 hasta, const QString &esperado) {
            QCOMPARE(impresionVarias::enFichero(varias(), donde,
                                                [=](qint64 cual) { return cual <= hasta; }),
                     esperado);
            QCOMPARE(lineas::leer(ruta), QByteArray("antes"));
            QCOMPARE(Guardadas::hechos(carpeta), QStringList(varias().nombreConjunto()));
            QCOMPARE(varias().cuantas(FilaImprimir::NoHecha), 4);
        };
        probar(ruta, 2, {});
        QCOMPARE(Guardadas::resultado(8), u"Detenido|Detenido|Detenido|Detenido"_s);
        probar(rutas().datos, 9, msj(Msj::FicheroDelPrograma, rutas().datos));
        Espacio = 20000;
        probar(ruta, 9, msj(Msj::FalloSinEspacio, ruta));
        Espacio = -1;
        m_guardadas->borrar(2);
        varias().PETICION().PedirOficial();
        QCOMPARE(impresionVarias::enFichero(varias(), ruta, seguirSiempre), QString());
        QCOMPARE(Guardadas::resultado(14), u"1|La declaración|1|1"_s);
        QCOMPARE(paginas(ruta), 6);
        const QByteArray pdf = lineas::leer(ruta);
        QVERIFY(pdf.contains("/Author <feff004f") && pdf.endsWith("%%EOF\n"));
    }

    void enImpresora()
    {
        QStringList titulos;
        const auto enviar = [&](TrabajoImpresion &trabajo) {
            titulos += trabajo.titulo();
            return titulos.size() < 3;
        };
        QCOMPARE(impresionVarias::enImpresora(varias(), u"Oficina"_s, enviar, seguirSiempre),
                 u"La impresora «Oficina» no ha aceptado el documento."_s);
        QCOMPARE(Guardadas::resultado(12), u"1|1|La impresora|Detenido ant"_s);
        QCOMPARE(titulos.last(), u"Modelo 430 – 2025-03 – "_s + lineas::dni(3));
    }

    void pantalla()
    {
        ListaAbierta<FrmImprimirVarias> p;
        m_guardadas.emplace();
        p.abrir();
        ficheros::observar([this](QFileDialog &dialogo) {
            dialogo.selectFile(m_destino->path());
            QTimer::singleShot(0, &dialogo,
                               [&dialogo] { static_cast<QDialog &>(dialogo).accept(); });
        });
        QCOMPARE(p.manos->texto("lblResumen"), u"Declaraciones que se imprimirán: 4"_s);
        p.manos->pulsar("cmdCarpeta");
        QCOMPARE(p.manos->texto("lblCarpeta"), u"Carpeta: "_s + m_destino->path());
        p.manos->pulsar("chkCopiaInteresado");
        lineas::escribir(m_destino->filePath(nombre(1)), "antes");
        // neither replaced nor kept: nothing is printed
        QCOMPARE(p.aviso("cmdImprimir", QMessageBox::Cancel),
                 u"1 de los ficheros ya existen.\n\n¿Desea sustituirlos?"_s);
        QCOMPARE(p.manos->texto("lblResumen"), u"Declaraciones que se imprimirán: 4"_s);
        p.aviso("cmdImprimir", QMessageBox::No);
        QCOMPARE(p.manos->texto("lblResumen"), u"Impresas: 3. No impresas: 1."_s);
        QCOMPARE(p.fila(0),
                 lineas::dni(1) + u"|SEGUROS 1|430 MARZO 2025|No hecha||"_s
                     + msj(Msj::FicheroYaExiste, m_destino->filePath(nombre(1))));
        QCOMPARE(p.fila(3),
                 lineas::dni(4) + u"|SEGUROS 4|430 MARZO 2025|Hecha|"_s + nombre(4) + u'|');
        QCOMPARE(lineas::leer(m_destino->filePath(nombre(1))), QByteArray("antes"));
        Entorno::pasarAEuskera(*p.pantalla);
        QCOMPARE(p.manos->texto("lblResumen"), u"Inprimatuak: 3. Inprimatu gabeak: 1."_s);
        p.manos->pulsar("chkCopiaAdministracion"); // no copy is left
        QVERIFY(!p.manos->control("cmdImprimir")->isEnabled());
        // what belongs to a destination can be used with that one only
        const char *suyos = "lblCarpeta cmdCarpeta lblImpresora btnOpcionesImpresora";
        for (const auto &[destino, usables] : {std::pair{"optDestino2", u"false|false|true|true"_s},
                                               {"optDestino1", u"false|false|false|false"_s},
                                               {"optDestino0", u"true|true|false|false"_s}}) {
            p.manos->pulsar(destino);
            QCOMPARE(p.manos->textos(suyos, "enabled"), usables);
        }
        // all in one, chosen in the dialogue; a printer only where there is one
        const QString uno = m_destino->filePath(u"uno.pdf"_s);
        ficheros::observar([&](QFileDialog &dialogo) {
            dialogo.selectFile(uno);
            QTimer::singleShot(0, &dialogo,
                               [&dialogo] { static_cast<QDialog &>(dialogo).accept(); });
        });
        p.manos->pulsar("chkCopiaAdministracion");
        p.manos->pulsar("optDestino1");
        p.manos->pulsar("cmdImprimir");
        QCOMPARE(paginas(uno), 4);
        QCOMPARE(p.manos->texto("lblResumen"), u"Inprimatuak: 4. Inprimatu gabeak: 0."_s);
    }

    /// The stored ones of those selected, or of all that are shown.
    void desdePendientes()
    {
        ListaAbierta<FrmPendientes> p;
        m_guardadas.emplace();
        m_guardadas->borrar(3);
        p.abrir();
        const auto impresas = [&] {
            p.siguiente.reset();
            p.manos->pulsar("cmdImprimir");
            QStringList partes;
            if (p.siguiente == Pantalla::ImprimirVarias)
                for (const auto &fila : varias().filas())
                    partes += fila.nombre.right(1);
            return partes.join(QString());
        };
        QCOMPARE(impresas(), u"124"_s);
        p.elegir(1);
        QTest::mouseClick(p.grid()->viewport(), Qt::LeftButton, Qt::ShiftModifier, p.lugar(2));
        QCOMPARE(impresas(), u"2"_s);
        QVERIFY(!p.manos->control("cmdAceptar")->isEnabled());
        p.elegir(2);
        QVERIFY(p.manos->control("cmdAceptar")->isEnabled());
        QCOMPARE(impresas(), u"124"_s);
    }

private:
    std::optional<Entorno> m_entorno;
    std::optional<Guardadas> m_guardadas;
    std::optional<QTemporaryDir> m_destino;
};

QTEST_MAIN(TstImprimirVarias)
#include "tst_imprimir_varias.moc"
