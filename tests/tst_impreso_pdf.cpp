#include "core/GuardarFichero.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "support/LineasPrueba.h"
#include "support/ValoresPrueba.h"

#include <QDir>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

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
        return guardarFichero(ruta, bytes).isEmpty() ? ruta : QString();
    }
    /// The page as a picture against the one kept with the tests.
    static void comparar(const QString &modelo)
    {
        constexpr int pixelesMm = 4;
        QImage imagen(210 * pixelesMm, 297 * pixelesMm, QImage::Format_RGB32);
        imagen.setDotsPerMeterX(pixelesMm * 1000);
        imagen.setDotsPerMeterY(pixelesMm * 1000);
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

    QTemporaryDir m_carpeta;

private Q_SLOTS:
    void propiedades()
    {
        const QByteArray bytes = pdf(u"480"_s, u"BO"_s);
        QVERIFY(bytes.size() < 60 * 1024);
        for (const char *parte :
             {"<rdf:li>Ostrel de seguros</rdf:li>", ">Modelo de prueba</rdf:li>",
              "<rdf:li>eu</rdf:li><rdf:li>es</rdf:li>"})
            QVERIFY2(bytes.contains(parte), parte);
        // the author's dictionary is where the table at the end says, one of one
        static const QRegularExpression tabla(
            u"xref\n(\\d+) 1\n(\\d{10}) 00000 n \ntrailer\n<<\n/Size \\d+\n/Info \\1 0 R\n"
            "/Root \\d+ 0 R\n/Prev \\d+\n>>\nstartxref\n(\\d+)\n%%EOF\n$"_s);
        const auto m = tabla.match(QString::fromLatin1(bytes));
        QVERIFY(m.hasMatch());
        QVERIFY(bytes.mid(m.captured(2).toInt()).startsWith(m.captured(1).toLatin1() + " 0 obj"));
        QVERIFY(bytes.mid(m.captured(3).toInt()).startsWith("xref\n"));
        if (QStandardPaths::findExecutable(u"pdffonts"_s).isEmpty())
            QSKIP("pdffonts (poppler-utils) is not installed");
        const QString fuentes = ejecutar(u"pdffonts"_s, {guardado(u"f.pdf"_s, bytes)});
        QVERIFY(fuentes.contains(u"TrueType"_s));
        for (const QString &linea : fuentes.split(u'\n', Qt::SkipEmptyParts).mid(2))
            QVERIFY2(linea.contains(u" yes "), qPrintable(linea)); // embedded
    }

    void referencias()
    {
        for (const QString &modelo : {u"430"_s, u"480"_s})
            comparar(modelo);
    }
};

QTEST_MAIN(TstImpresoPdf)
#include "tst_impreso_pdf.moc"
