#include "app/Estilo.h"
#include "support/Entorno.h"
#include "widgets/Ficheros.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

namespace {

/// Notes every text of Qt's own that is asked for and has no translation of ours.
class SinTraducir : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *contexto, const char *texto, const char *, int) const override
    {
        const QString hallado = m_nuestros.translate(contexto, texto, nullptr, -1);
        static const QRegularExpression palabra(u"[A-Za-z]{2}"_s);
        if (hallado.isEmpty() && QString::fromUtf8(texto).contains(palabra)
            && qstrcmp(contexto, "QShortcut") != 0 && qstrcmp(texto, "QT_LAYOUT_DIRECTION") != 0
            && !QByteArrayView(texto).startsWith("Alt+"))
            m_faltan.insert(QString::fromLatin1(contexto) + u": "_s + QString::fromUtf8(texto));
        return hallado;
    }
    QStringList faltan() const { return m_faltan.values(); }

private:
    TextosQt m_nuestros;
    mutable QSet<QString> m_faltan;
};

} // namespace

/// Qt's own dialogues speak the session's language from end to end, and leave nothing behind.
class TstTextosQt : public QObject
{
    Q_OBJECT

private:
    /// Runs `abrir` and, while its dialogue is up, `mirar`.
    template <class Dialogo> static void conDialogo(Dialogo &dialogo)
    {
        QTimer::singleShot(0, &dialogo, [&dialogo] {
            // every page and every menu that can be reached
            for (auto *boton : dialogo.template findChildren<QAbstractButton *>())
                if (boton->isCheckable())
                    boton->click();
            QTimer::singleShot(0, &dialogo, &QDialog::reject);
        });
        dialogo.exec();
    }

    /// The texts of Qt's dialogues that are left in English.
    static QStringList sinTraducir(const QString &idioma)
    {
        const Entorno entorno(idioma);
        SinTraducir textos;
        QApplication::installTranslator(&textos);
        const QString existente = entorno.ruta(u"Tablas/OstrMod.mdb"_s);
        ficheros::observar([&](QFileDialog &dialogo) {
            dialogo.show();
            QTimer::singleShot(0, &dialogo, &QDialog::reject);
        });
        ficheros::abrir(nullptr, u"abrir"_s, entorno.ruta(u"Tablas"_s), u"*"_s);
        ficheros::carpeta(nullptr, u"carpeta"_s, entorno.ruta(u"Tablas"_s));
        // a file that is there, a folder, a file that is not there: each with its own box
        const auto contestar = [](QFileDialog &dialogo, const QString &nombre) {
            QTimer::singleShot(0, &dialogo, [&dialogo, nombre] {
                QTimer::singleShot(0, [] {
                    if (auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                        caja->reject();
                });
                dialogo.findChild<QLineEdit *>()->setText(nombre);
                dialogo.findChild<QDialogButtonBox *>()->buttons().first()->click();
                dialogo.reject();
            });
        };
        ficheros::observar([&](QFileDialog &d) { contestar(d, existente); });
        ficheros::guardar(nullptr, u"guardar"_s, existente, u"*"_s);
        ficheros::observar([&](QFileDialog &d) { contestar(d, u"no esta"_s); });
        ficheros::abrir(nullptr, u"abrir"_s, entorno.ruta(u"Tablas"_s), u"*"_s);
        ficheros::observar({});

        QPrinter impresora;
        QPrintDialog opciones(&impresora);
        conDialogo(opciones);
        QPageSetupDialog pagina(&impresora);
        conDialogo(pagina);
        QPrintPreviewDialog previa(&impresora);
        QTimer::singleShot(0, &previa, &QDialog::reject);
        previa.exec();
        QApplication::removeTranslator(&textos);
        return textos.faltan();
    }

private Q_SLOTS:
    void todoTraducido()
    {
        for (const QString &idioma : {u"C"_s, u"E"_s})
            QCOMPARE(sinTraducir(idioma), QStringList());
    }

    void nadaEnLaCarpetaDelUsuario()
    {
        const QString suya
            = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
        QVERIFY(!QFileInfo::exists(suya + u"/QtProject.conf"_s));
    }
};

int main(int argc, char **argv)
{
    QTemporaryDir casa;
    qputenv("XDG_CONFIG_HOME", casa.path().toLocal8Bit());
    QApplication programa(argc, argv);
    ficheros::sinRastro();
    TstTextosQt prueba;
    return QTest::qExec(&prueba, argc, argv);
}
#include "tst_textosqt.moc"
