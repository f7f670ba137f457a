#include "printing/SalidaImpresora.h"
#include "printing/TrabajoImpresion.h"
#include "support/DeclaracionesPrueba.h"
#include "support/ServidorPrueba.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>

static const QString Cola = u"OstrelPrueba"_s;

static QString programa(const QString &nombre)
{
    return QStandardPaths::findExecutable(
        nombre, {u"/usr/sbin"_s, u"/usr/bin"_s, u"/usr/lib/cups/backend"_s});
}

/// Both copies through a real print queue: a CUPS server of our own on a free port, with the PDF
/// printer behind it.
class TstImpresoCola : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &nombre : {u"cupsd"_s, u"lpadmin"_s, u"cups-pdf"_s})
            if (programa(nombre).isEmpty())
                QSKIP("needs cups and printer-driver-cups-pdf");
        QVERIFY(iniciarCups());
        QTRY_VERIFY(!salidaDe(u"lpadmin"_s,
                              {u"-p"_s, Cola, u"-E"_s, u"-v"_s, u"cups-pdf:/"_s, u"-m"_s,
                               u"lsb/usr/cups-pdf/CUPS-PDF_opt.ppd"_s})
                         .isNull());
        QTRY_VERIFY(SalidaImpresora::hayImpresoras());
    }

    void dosDocumentos()
    {
        const Entorno entorno;
        pedirImpresion(u"430"_s);
        TrabajoImpresion trabajo(unico::la<cImOf>());
        SalidaImpresora salida;
        QVERIFY(!salida.elegir(u"OtraQueNoExiste"_s) && salida.elegir(Cola));
        QVERIFY(salida.imprimir(trabajo));
        // the server keeps what each job sent it: d00001-001, d00002-001
        const QDir cola(m_carpeta.filePath(u"cola"_s));
        QTRY_COMPARE(cola.entryList({u"d*"_s}, QDir::Files).size(), 2);
        const QStringList trabajos = cola.entryList({u"d*"_s}, QDir::Files, QDir::Name);
        for (int i = 0; i < 2; ++i)
            QVERIFY(salidaDe(u"pdftotext"_s, {cola.filePath(trabajos[i]), u"-"_s})
                        .contains(i == 0 ? "ADMINISTRACIÓN" : "INTERESADO"));
    }

    void cleanupTestCase()
    {
        m_cups.terminate();
        m_cups.waitForFinished(5000);
    }

private:
    bool iniciarCups()
    {
        QTcpServer puerto;
        if (!puerto.listen(QHostAddress::LocalHost))
            return false;
        const QString servidor = u"127.0.0.1:"_s + QString::number(puerto.serverPort());
        puerto.close();
        for (const char *sub : {"estado", "cola", "tmp", "cache"})
            QDir(m_carpeta.path()).mkpath(QString::fromLatin1(sub));
        const QString raiz = m_carpeta.path();
        escribir(raiz + u"/cups-files.conf"_s,
                 u"ServerRoot %1\nStateDir %1/estado\nRequestRoot %1/cola\nTempDir %1/tmp\n"
                 "CacheDir %1/cache\nErrorLog %1/error_log\nAccessLog %1/access_log\n"
                 "PageLog %1/page_log\nFileDevice Yes\n"_s.arg(raiz)
                     .toUtf8());
        escribir(
            raiz + u"/cupsd.conf"_s,
            u"Listen %1\nBrowsing Off\nDefaultAuthType None\nPreserveJobFiles Yes\n"
            "PreserveJobHistory Yes\n<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
            "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n"_s
                .arg(servidor)
                .toUtf8());
        qputenv("CUPS_SERVER", servidor.toLatin1());
        m_cups.start(
            programa(u"cupsd"_s),
            {u"-f"_s, u"-c"_s, raiz + u"/cupsd.conf"_s, u"-s"_s, raiz + u"/cups-files.conf"_s});
        return m_cups.waitForStarted();
    }

    /// What a program writes; null when it fails.
    static QByteArray salidaDe(const QString &nombre, const QStringList &argumentos)
    {
        QProcess proceso;
        proceso.start(programa(nombre), argumentos);
        return proceso.waitForFinished() && proceso.exitCode() == 0
            ? proceso.readAllStandardOutput().append('\n')
            : QByteArray();
    }

    QTemporaryDir m_carpeta;
    QProcess m_cups;
};

QTEST_MAIN(TstImpresoCola)
#include "tst_impreso_cola.moc"
