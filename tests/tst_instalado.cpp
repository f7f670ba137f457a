#include "cli/Orden.h"
#include "support/Ostrel.h"

/// What an installed program brings: a folder of its user's own, and what bash offers while a
/// command is typed.
class TstInstalado : public QObject, Ostrel
{
    Q_OBJECT

private Q_SLOTS:
    /// The data are the user's alone, also where the path has the word that moves the tables of a
    /// program in a folder of its own.
    void carpetaDelUsuario()
    {
        const QTemporaryDir raiz;
        const QDir usr(raiz.filePath(u"cliente"_s));
        QVERIFY(usr.mkpath(u"bin"_s) && usr.mkpath(u"share/applications"_s));
        QVERIFY(
            QFile(usr.filePath(u"share/applications/ostrel.desktop"_s)).open(QIODevice::WriteOnly));
        const QString programa = usr.filePath(u"bin/ostrel"_s);
        QVERIFY(QFile::copy(QStringLiteral(OSTREL), programa));
        const QString suya = usr.filePath(u"datos/ostrel"_s);
        const auto ejecutar = [&](const QString &orden) {
            QProcess proceso;
            auto entorno = QProcessEnvironment::systemEnvironment();
            entorno.insert(u"XDG_DATA_HOME"_s, usr.filePath(u"datos"_s));
            proceso.setProcessEnvironment(entorno);
            proceso.start(programa, {orden});
            return proceso.waitForFinished() ? proceso.exitCode() : -1;
        };
        QCOMPARE(ejecutar(u"--version"_s), 0);
        QVERIFY(!QFileInfo::exists(suya)); // asking leaves no trace
        QCOMPARE(ejecutar(u"copia"_s), 0);
        QCOMPARE(QDir(suya + u"/Tablas"_s).entryList(QDir::Files),
                 QStringList({u"OstrLec.mdb"_s, u"OstrMod.mdb"_s}));
        QVERIFY(QFileInfo::exists(suya + u"/backups/OstrMod_bak.mdb"_s));
        QCOMPARE(QFileInfo(suya).permissions() & 0xff, QFile::Permissions());
        QCOMPARE(usr.entryList({u"*.mdb"_s, u"Tablas"_s}), QStringList());
    }

    /// Every word and every option of the table of commands.
    void todas()
    {
        QStringList lineas{u"ostrel "_s};
        QList<QStringList> esperadas{comunes()};
        for (const Orden *orden : ordenes()) {
            const QStringList palabras = orden->palabras.toString().split(u' ');
            esperadas.first() += palabras.first();
            lineas += u"ostrel "_s + orden->palabras.toString() + u" -"_s;
            esperadas += comunes();
            for (const Opcion &opcion : orden->opciones)
                esperadas.last() += conGuiones(opcion.nombre);
            if (palabras.size() > 1) {
                lineas += u"ostrel "_s + palabras.first() + u' ' + palabras.last();
                esperadas += {palabras.last()};
            }
        }
        const QStringList ofrecidas = ofrecido(lineas);
        for (qsizetype i = 0; i < lineas.size(); ++i) {
            esperadas[i].sort();
            esperadas[i].removeDuplicates();
            QCOMPARE(lineas[i] + u": "_s + ofrecidas.value(i),
                     lineas[i] + u": "_s + esperadas[i].join(u' '));
        }
    }

    void valores()
    {
        const std::pair<QString, QString> casos[] = {
            {u"ostrel --carpeta d listar decla"_s, u"declaraciones declarantes"_s},
            {u"ostrel --carpeta "_s, u"<dirnames>"_s},
            {u"ostrel imprimir --modelo = 4"_s, u"430 480"_s}, // as bash takes it apart
            {u"ostrel imprimir --pdf x"_s, u"<default>"_s},
            {u"ostrel pendientes --periodo A"_s, u"ANUAL"_s},
            {u"ostrel declarar --desde f.csv --s"_s, u"--simular --sustituir"_s},
            {u"ostrel declarar 430 --dni 1 --d"_s, {}}, // given already
            {u"ostrel exportar f --dni 1 --d"_s, u"--dni"_s}, // as often as one likes
            {u"ostrel importar "_s, u"<default>"_s},
            {u"ostrel idioma "_s, u"C E"_s},
            {u"ostrel idioma E "_s, comunes().join(u' ')},
        };
        QStringList lineas, esperado;
        for (const auto &[linea, ofrecida] : casos) {
            lineas += linea;
            esperado += ofrecida;
        }
        QCOMPARE(ofrecido(lineas), esperado);
    }

    void otroInterprete() { rechazada(ostrel(partes("completado zsh")), "zsh", 2); }

private:
    static QStringList comunes() { return {u"--carpeta"_s, u"--help"_s, u"--version"_s}; }

    /// What bash itself makes of the lines; their last word is the one that is being typed. Where
    /// it is to offer files, the option by which it is told so.
    QStringList ofrecido(const QStringList &lineas) const
    {
        const char *const guion = R"(
compopt() { COMPREPLY=("<$2>"); }
while IFS= read -r linea; do
    read -ra COMP_WORDS <<<"$linea"
    [[ $linea != *" " ]] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _ostrel
    echo "${COMPREPLY[*]}"
done <<<"$0")";
        const QByteArray script = ostrel(partes("completado bash")).texto;
        QProcess bash;
        auto entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(u"LC_ALL"_s, u"C"_s);
        bash.setProcessEnvironment(entorno);
        bash.setProcessChannelMode(QProcess::MergedChannels);
        bash.start(u"bash"_s, {u"-c"_s, QString::fromUtf8(script + guion), lineas.join(u'\n')});
        if (!bash.waitForFinished())
            qFatal("bash does not end");
        return QString::fromUtf8(bash.readAll()).chopped(1).split(u'\n');
    }
};

QTEST_GUILESS_MAIN(TstInstalado)
#include "tst_instalado.moc"
