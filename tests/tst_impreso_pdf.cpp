#include "core/Rutas.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "support/ValoresPrueba.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

#ifdef Q_OS_UNIX
/// Takes the place of the system's: fails as a broken disk does while the switch is on.
static bool SincronizacionRota = false;
extern "C" int fsync(int descriptor)
{
    if (SincronizacionRota) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}
#endif

static QByteArray contenido(const QString &ruta)
{
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
}

#ifdef Q_OS_UNIX
/// Saves a PDF over another in a child process that `restringir` has tied down: it has to be
/// refused with a reason, and the other to stay as it was.
static void guardarRestringido(const QString &carpeta, const QByteArray &bytes,
                               void (*restringir)(), QFile::Permissions permisos)
{
    QVERIFY(QDir().mkpath(carpeta));
    const QString ruta = carpeta + u"/a.pdf"_s;
    QCOMPARE(guardarPdf(ruta, "antes"), QString());
    const auto deAntes = QFile::permissions(carpeta);
    QVERIFY(QFile::setPermissions(carpeta, permisos));
    const pid_t hijo = fork();
    if (hijo == 0) {
        restringir();
        _exit(guardarPdf(ruta, bytes).isEmpty() ? 0 : 3);
    }
    int estado = 0;
    QCOMPARE(waitpid(hijo, &estado, 0), hijo);
    QVERIFY(QFile::setPermissions(carpeta, deAntes));
    QCOMPARE(WEXITSTATUS(estado), 3);
    QCOMPARE(contenido(ruta), QByteArray("antes"));
    QCOMPARE(QDir(carpeta).entryList(QDir::Files).size(), 1);
}
#endif

/// The forms as PDF files and as pictures.
class TstImpresoPdf : public QObject
{
    Q_OBJECT

private:
    static QByteArray pdf(const QString &modelo, const QString &copia)
    {
        return documentoPdf(u"Modelo de prueba"_s, [&](QPagedPaintDevice &dispositivo) {
            QPainter pintor(&dispositivo);
            valoresPrueba::dibujar(pintor, modelo, valoresPrueba::lleno(), copia);
            return pintor.end();
        });
    }
    QString ejecutar(const QString &programa, const QStringList &argumentos)
    {
        QProcess proceso;
        proceso.start(programa, argumentos);
        return proceso.waitForFinished() && proceso.exitCode() == 0
            ? QString::fromUtf8(proceso.readAllStandardOutput())
            : QString();
    }
    QString guardado(const QString &nombre, const QByteArray &bytes)
    {
        const QString ruta = m_carpeta.filePath(nombre);
        return guardarPdf(ruta, bytes).isEmpty() ? ruta : QString();
    }
    static void modelos()
    {
        QTest::addColumn<QString>("modelo");
        QTest::newRow("430") << u"430"_s;
        QTest::newRow("480") << u"480"_s;
    }

    QTemporaryDir m_carpeta;

private Q_SLOTS:
    void propiedades()
    {
        const QByteArray bytes = pdf(u"430"_s, u"BO"_s);
        QVERIFY(bytes.contains("<rdf:li>Ostrel de seguros</rdf:li>"));
        QVERIFY(bytes.contains("<rdf:li>eu</rdf:li><rdf:li>es</rdf:li>"));
        QVERIFY(bytes.contains(">Modelo de prueba</rdf:li>"));
        const QString datos = ejecutar(u"pdfinfo"_s, {guardado(u"i.pdf"_s, bytes)});
        static const QRegularExpression autor(u"Author: +Ostrel de seguros\n"_s);
        QVERIFY2(datos.isEmpty()
                     || (datos.contains(autor) && datos.contains(u"Modelo de prueba"_s)),
                 qPrintable(datos));
        if (QStandardPaths::findExecutable(u"pdffonts"_s).isEmpty())
            QSKIP("pdffonts (poppler-utils) is not installed");
        const QString fuentes = ejecutar(u"pdffonts"_s, {guardado(u"f.pdf"_s, bytes)});
        QVERIFY(fuentes.contains(u"TrueType"_s));
        for (const QString &linea : fuentes.split(u'\n', Qt::SkipEmptyParts).mid(2))
            QVERIFY2(linea.contains(u" yes "), qPrintable(linea)); // embedded
    }

    void documento_data() { modelos(); }
    /// How large it is, how long it takes and every text that a reader can copy from it.
    void documento()
    {
        QFETCH(QString, modelo);
        const QByteArray bytes = pdf(modelo, u"AD"_s); // loads the fonts
        QVERIFY(!bytes.isEmpty() && bytes.size() < 60 * 1024);
        constexpr int veces = 5;
        const std::clock_t inicio = std::clock();
        for (int i = 0; i < veces; ++i)
            QVERIFY(pdf(modelo, u"AD"_s).size() < 60 * 1024);
        const double ms
            = 1000.0 * static_cast<double>(std::clock() - inicio) / CLOCKS_PER_SEC / veces;
#ifdef NDEBUG
        QVERIFY(ms < 50);
#else
        QVERIFY(ms < 2000); // unoptimised, maybe with sanitizers
#endif
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed");
        const QString texto
            = ejecutar(u"pdftotext"_s, {u"-raw"_s, guardado(u"t.pdf"_s, bytes), u"-"_s})
                  .simplified();
        const auto esperados
            = valoresPrueba::leerTextos(QStringLiteral(OSTREL_REFERENCIAS "/%1.txt").arg(modelo));
        QVERIFY(esperados.size() > 60);
        for (const auto &esperado : esperados)
            QVERIFY2(texto.contains(esperado.texto.simplified()), qPrintable(esperado.texto));
    }

    void referencia_data()
    {
        modelos();
    }
    void referencia()
    {
        QFETCH(QString, modelo);
        constexpr double pixelesMm = 4;
        QImage imagen(static_cast<int>(210 * pixelesMm), static_cast<int>(297 * pixelesMm),
                      QImage::Format_RGB32);
        imagen.setDotsPerMeterX(static_cast<int>(pixelesMm * 1000));
        imagen.setDotsPerMeterY(imagen.dotsPerMeterX());
        imagen.fill(Qt::white);
        QPainter pintor(&imagen);
        valoresPrueba::dibujar(pintor, modelo, valoresPrueba::lleno(), u"AD"_s);
        pintor.end();
        const QImage hecha
            = imagen.scaled(imagen.size() / 2, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/%1.png").arg(modelo);
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            QVERIFY(hecha.save(ruta));
        const QImage guardada = QImage(ruta).convertToFormat(QImage::Format_RGB32);
        QVERIFY2(!guardada.isNull(), qPrintable(ruta));
        QCOMPARE(hecha.size(), guardada.size());
        qint64 distintos = 0;
        for (int y = 0; y < hecha.height(); ++y)
            for (int x = 0; x < hecha.width(); ++x) {
                const QColor a = hecha.pixelColor(x, y), b = guardada.pixelColor(x, y);
                distintos += std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                       std::abs(a.blue() - b.blue())})
                    > 64;
            }
        const double parte = static_cast<double>(distintos) / (hecha.width() * hecha.height());
        QVERIFY2(parte < 0.002, qPrintable(QString::number(parte)));
    }

#ifdef Q_OS_UNIX
    /// A sync that fails is told, and the file is the old one.
    void sincronizacionQueFalla()
    {
        const QString ruta = guardado(u"s.pdf"_s, "antes");
        SincronizacionRota = true;
        const QString motivo = guardarPdf(ruta, "nuevo");
        SincronizacionRota = false;
        QVERIFY2(motivo.startsWith(u"Error del disco"_s), qPrintable(motivo));
        QCOMPARE(contenido(ruta), QByteArray("antes"));
    }

    /// Neither a database under any name nor what is no file is written.
    void rutasQueNoSeEscriben()
    {
        QVERIFY(QDir(m_carpeta.path()).mkpath(u"Tablas"_s));
        fijarRutas(Rutas::desde(m_carpeta.path()));
        const QString base = rutas().datos;
        QFile modelo(base);
        QVERIFY(modelo.open(QIODevice::WriteOnly) && modelo.write("datos") == 5);
        modelo.close();
        const QString enlace = m_carpeta.filePath(u"enlace.pdf"_s);
        const QString tuberia = m_carpeta.filePath(u"tuberia.pdf"_s);
        QVERIFY(QFile::link(base, enlace));
        QCOMPARE(mkfifo(QFile::encodeName(tuberia).constData(), 0600), 0);
        for (const QString &ruta : {base, enlace, tuberia, m_carpeta.path()})
            QVERIFY2(!guardarPdf(ruta, "pdf").isEmpty(), qPrintable(ruta));
        QCOMPARE(contenido(base), QByteArray("datos"));
    }
#endif

    void guardadosQueFallan()
    {
        const QString motivo = guardarPdf(m_carpeta.filePath(u"no/esta.pdf"_s), "x");
        QVERIFY(motivo.startsWith(u"No existe el fichero"_s));
#ifdef Q_OS_UNIX
        QFile::setPermissions(m_carpeta.path(), QFile::Permissions(0x5755));
        guardarRestringido(
            m_carpeta.filePath(u"fija"_s), "nuevo",
            [] {
                // file modes do not hold for root
                if (geteuid() == 0 && setuid(65534) != 0)
                    _exit(9);
            },
            QFile::Permissions(0x5555));
        guardarRestringido(
            m_carpeta.filePath(u"llena"_s), pdf(u"430"_s, u"AD"_s),
            [] {
                // no file can grow past 10 KB
                const rlimit limite{10240, 10240};
                std::signal(SIGXFSZ, SIG_IGN);
                if (setrlimit(RLIMIT_FSIZE, &limite) != 0)
                    _exit(9);
            },
            QFile::Permissions(0x7755));
#endif
    }
};

QTEST_MAIN(TstImpresoPdf)
#include "tst_impreso_pdf.moc"
