#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

/// The layers that the link lines cannot check by themselves, read from the #include lines.
class TstCapas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inclusiones_data()
    {
        QTest::addColumn<QString>("donde"); // paths under src, which the rule is about
        QTest::addColumn<bool>("dentro"); // or about every other one
        QTest::addColumn<QString>("prohibidas"); // headers
        const QString ventanas
            = u"^(QtWidgets|Q(?!StringView|ByteArrayView)[A-Z]\\w*(Widget|Dialog|Box|Edit|Button|"
              u"Window|Label|View)\\b|QWidget|"
              u"QApplication|widgets/|[a-z]+/[Ff]rm)"_s;
        QTest::newRow("no widget in a record")
            << u"^(core|dataservice|server|cli)/|^(?!widgets/).*/c[A-Z]\\w*\\.(h|cpp)$"_s << true
            << ventanas;
        QTest::newRow("SQLite in the server only")
            << u"^server/"_s << false << u"^(SQLiteCpp|sqlite3|QSql|QtSql)"_s;
        QTest::newRow("message boxes in widgets only")
            << u"^widgets/"_s << false << u"^(QtWidgets/)?QMessageBox"_s;
        QTest::newRow("the server is linked by the program only")
            << u"^(server/|main\\.cpp$|app/)"_s << false << u"^server/"_s;
    }

    void inclusiones()
    {
        QFETCH(QString, donde);
        QFETCH(bool, dentro);
        QFETCH(QString, prohibidas);
        const QRegularExpression ruta(donde);
        const QRegularExpression prohibida(prohibidas);
        static const QRegularExpression inclusion(u"^\\s*#\\s*include\\s*[<\"]([^>\"]+)"_s,
                                                  QRegularExpression::MultilineOption);
        const QDir raiz(QStringLiteral(OSTREL_SRC));
        int leidos = 0;
        QStringList faltas;
        QDirIterator ficheros(raiz.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                              QDirIterator::Subdirectories);
        while (ficheros.hasNext()) {
            QFile fichero(ficheros.next());
            const QString relativa = raiz.relativeFilePath(fichero.fileName());
            if (ruta.match(relativa).hasMatch() != dentro)
                continue;
            QVERIFY(fichero.open(QIODevice::ReadOnly));
            ++leidos;
            const QString texto = QString::fromUtf8(fichero.readAll());
            for (auto i = inclusion.globalMatch(texto); i.hasNext();) {
                const QString cabecera = i.next().captured(1);
                if (prohibida.match(cabecera).hasMatch())
                    faltas += relativa + u" <- "_s + cabecera;
            }
        }
        QVERIFY(leidos > 10);
        QVERIFY2(faltas.isEmpty(), qPrintable(faltas.join(u'\n')));
    }
};

QTEST_APPLESS_MAIN(TstCapas)
#include "tst_capas.moc"
