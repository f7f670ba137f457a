#include "app/MDIOstrel.h"
#include "core/CEntrada.h"
#include "core/Textos.h"
#include "help/TeclaAyuda.h"
#include "help/TemasAyuda.h"
#include "resources/TablaMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextBrowser>

#include <optional>

using namespace Qt::StringLiterals;

static QString contenido(const QString &ruta)
{
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichero.readAll()) : QString();
}

static QStringList capturas(const QString &patron, const QString &texto)
{
    QStringList halladas;
    for (const auto &una : QRegularExpression(patron).globalMatch(texto))
        halladas.append(una.captured(1));
    return halladas;
}

/// A text of the tables as it reads on the screen, its placeholders standing for anything.
static QString patronDe(QString texto)
{
    static const QRegularExpression hueco(u"%[1-9]"_s);
    texto = texto.remove(u'&').simplified();
    QStringList partes;
    for (const QString &parte : texto.split(hueco))
        partes.append(QRegularExpression::escape(parte));
    return partes.join(u".+?"_s);
}

/// The help: its topics against the program's real texts and screens, and its window.
class PruebaAyuda : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;

    static QString carpeta() { return QStringLiteral(OSTREL_SRC) + u"/resources/ayuda/"_s; }
    static QStringList ficheros(const QString &idioma)
    {
        return QDir(carpeta() + idioma).entryList({u"*.htm"_s}, QDir::Files, QDir::Name);
    }
    static void losDosIdiomas()
    {
        QTest::addColumn<QString>("idioma");
        QTest::newRow("castellano") << u"c"_s;
        QTest::newRow("euskera") << u"e"_s;
    }
    static void pasarA(const QString &idioma) { unico::la<CEntrada>().IDI(idioma.toUpper()); }
    static QWidget *ventanaAyuda()
    {
        for (auto *una : QApplication::topLevelWidgets()) {
            if (una->objectName() == u"FrmAyuda" && una->isVisible())
                return una;
        }
        return nullptr;
    }
    /// The topic shown; empty while the help is closed.
    static QString tema()
    {
        auto *ventana = ventanaAyuda();
        return ventana ? ventana->findChild<QTextBrowser *>()->source().fileName() : QString();
    }

private Q_SLOTS:
    void init() { m_entorno.emplace(); }
    void cleanup()
    {
        delete ventanaAyuda();
        m_entorno.reset();
        fijarIdioma(Idioma::Castellano);
    }

    void losMismosTemasEnLosDosIdiomas()
    {
        QStringList euskera = ficheros(u"e"_s);
        QVERIFY(euskera.size() > 15);
        euskera.replaceInStrings(u"kap.htm"_s, u"cap.htm"_s).sort();
        QCOMPARE(euskera, ficheros(u"c"_s));
    }

    void enlacesYContenido_data() { losDosIdiomas(); }
    void enlacesYContenido()
    {
        QFETCH(QString, idioma);
        pasarA(idioma);
        const QStringList todos = ficheros(idioma);
        for (const QString &fichero : todos) {
            for (const QString &enlace :
                 capturas(u"href=\"([^\"]*)\""_s, contenido(carpeta() + idioma + u'/' + fichero)))
                QVERIFY2(todos.contains(enlace), qPrintable(fichero + u" -> "_s + enlace));
        }
        QStringList enContenido;
        for (const auto &uno : ayuda::temas()) {
            enContenido.append(uno.nombre);
            QVERIFY2(!uno.titulo.isEmpty() && uno.claves.size() > 1 && uno.texto.size() > 200,
                     qPrintable(uno.nombre));
        }
        QCOMPARE(enContenido.first(), ayuda::portada());
        enContenido.sort();
        QCOMPARE(enContenido, todos);
    }

    void citaLosTextosDelPrograma_data() { losDosIdiomas(); }
    void citaLosTextosDelPrograma()
    {
        QFETCH(QString, idioma);
        QStringList patrones;
        for (const Mensaje &mensaje : tablaMensajes()) {
            const QString texto = idioma == u"c" ? mensaje.castellano : mensaje.euskera;
            if (!texto.startsWith(u"%1: ") && !texto.startsWith(u"%1\n")) // would be anything
                patrones.append(patronDe(texto));
        }
        const QRegularExpression deLaTabla(u"^(?:"_s + patrones.join(u'|') + u")$"_s);
        for (const QString &fichero : ficheros(idioma)) {
            const QString html = contenido(carpeta() + idioma + u'/' + fichero);
            for (const QString &cita :
                 capturas(u"<b>(.*?)</b>"_s, html) + capturas(u"<dt>(.*?)</dt>"_s, html))
                QVERIFY2(deLaTabla.match(cita).hasMatch(), qPrintable(fichero + u": "_s + cita));
        }
    }

    void explicaCadaMensaje_data() { losDosIdiomas(); }
    void explicaCadaMensaje()
    {
        QFETCH(QString, idioma);
        pasarA(idioma);
        QString citados;
        for (const QString &fichero : ficheros(idioma))
            citados += capturas(u"<dt>(.*?)</dt>"_s, contenido(carpeta() + idioma + u'/' + fichero))
                           .join(u'\n')
                + u'\n';
        const std::pair<Msj, Msj> tramos[] = {
            {Msj::AvisoTieneDeclaraciones, Msj::PreguntaBorrarDeclarante},
            {Msj::ErrorDni, Msj::ErrorPeriodoLista},
            {Msj::PreguntaBorrarDeclaracion, Msj::ErrorFechaAnterior},
            {Msj::PreguntaSobreescribir, Msj::ErrorTotal480},
            {Msj::SinDeclaracionesMensuales, Msj::SinDeclaracionesMensuales},
            {Msj::NoExisteFicheroImportar, Msj::NoExisteFicheroImportar},
            {Msj::SinNavegador, Msj::SinNavegador},
            {Msj::FalloConexion, Msj::FalloConexion},
            {Msj::DatosActualizacionErroneos, Msj::DatosActualizacionErroneos},
            {Msj::FalloNoExiste, Msj::FalloLecturaEscritura},
            {Msj::ImporteIlegible, Msj::ImporteTotalExcedido},
        };
        for (const auto &[primero, ultimo] : tramos) {
            for (int n = static_cast<int>(primero); n <= static_cast<int>(ultimo); ++n) {
                const QString texto = msj(static_cast<Msj>(n));
                const QRegularExpression linea(u"^"_s + patronDe(texto) + u"$"_s,
                                               QRegularExpression::MultilineOption);
                QVERIFY2(linea.match(citados).hasMatch(), qPrintable(texto));
            }
        }
    }

    void cadaPantallaTieneSuTema()
    {
        const QStringList sinTema{u"frmInicio"_s, u"FrmAyuda"_s};
        QStringList pantallas;
        QDirIterator fuentes(QStringLiteral(OSTREL_SRC), {u"*.cpp"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (fuentes.hasNext())
            pantallas
                += capturas(u"u\"((?:[Ff]rm\\w+|MDIOstrel))\"_s"_s, contenido(fuentes.next()));
        QVERIFY(pantallas.size() > 10);
        for (const QString &pantalla : std::as_const(pantallas)) {
            if (!sinTema.contains(pantalla))
                QVERIFY2(!ayuda::temaDePantalla(pantalla).isEmpty(), qPrintable(pantalla));
        }
    }

    void f1AbreElTemaDeLaPantallaDeDelante()
    {
        const TeclaAyuda f1;
        Entorno::altaDeclarante();
        MDIOstrel principal;
        principal.show();
        QVERIFY(QTest::qWaitForWindowActive(&principal));
        QTest::keyClick(&principal, Qt::Key_F1);
        QCOMPARE(tema(), u"mdiostrel.htm"_s);
        QTest::keyClick(&principal, Qt::Key_O, Qt::ControlModifier);
        auto *lista = principal.findChild<QWidget *>(u"FrmDecLista"_s);
        QVERIFY(lista);
        QTest::keyClick(&principal, Qt::Key_F1); // the focus is in no screen
        QCOMPARE(tema(), u"frmdeclista.htm"_s);
        QTest::keyClick(&principal, Qt::Key_N, Qt::ControlModifier);
        auto *dni = principal.findChild<QWidget *>(u"txtdni"_s);
        QVERIFY(dni);
        QTest::keyClick(dni, Qt::Key_F1);
        QCOMPARE(tema(), u"frmdecdatos.htm"_s);
        principal.findChild<QAction *>(u"mnucontind"_s)->trigger();
        QCOMPARE(tema(), u"cap.htm"_s);
        Entorno::pasarAEuskera(*ventanaAyuda());
        QCOMPARE(tema(), u"kap.htm"_s);
        QCOMPARE(ventanaAyuda()->windowTitle(), u"Aseguruen Ostrel programaren laguntza"_s);
    }

    void seUsaDelanteDeUnaPantallaModal()
    {
        const TeclaAyuda f1;
        QDialog modal;
        modal.setObjectName(u"frmPreferencias"_s);
        modal.open();
        QVERIFY(QTest::qWaitForWindowActive(&modal));
        QTest::keyClick(&modal, Qt::Key_F1);
        QCOMPARE(tema(), u"frmpreferencias.htm"_s);
        QCOMPARE(ventanaAyuda()->parentWidget(), &modal);
        QTest::keyClick(ventanaAyuda(), Qt::Key_Escape);
        QTRY_VERIFY(!ventanaAyuda());
    }

    void indiceYBusqueda()
    {
        abrirAyuda(ayuda::portada());
        const Manos manos(*ventanaAyuda());
        manos.control<QTabWidget>("tabAyuda")->setCurrentIndex(1);
        manos.escribir("txtIndice", u"rectificacion"_s);
        auto *indice = manos.control<QListWidget>("lstIndice");
        QStringList visibles;
        for (int i = 0; i < indice->count(); ++i) {
            if (!indice->item(i)->isHidden())
                visibles.append(indice->item(i)->text());
        }
        QCOMPARE(visibles, QStringList(u"rectificación"_s));

        manos.control<QTabWidget>("tabAyuda")->setCurrentIndex(2);
        manos.escribir("txtBuscar", u"CODIGO municipio"_s);
        auto *resultados = manos.control<QListWidget>("lstResultados");
        QVERIFY(resultados->count() > 1);
        QCOMPARE(ayuda::buscar(u"copia usted"_s).first().tema, u"copia.htm"_s); // in its title
        const auto fila = resultados->findItems(u"Datos del declarante"_s, Qt::MatchExactly);
        QCOMPARE(fila.size(), 1);
        QTest::mouseClick(resultados->viewport(), Qt::LeftButton, {},
                          resultados->visualItemRect(fila.first()).center());
        QCOMPARE(tema(), u"frmdecdatos.htm"_s);
        manos.pulsar("cmdAtras");
        QCOMPARE(tema(), u"cap.htm"_s);
        manos.escribir("txtBuscar", u"xyzw"_s);
        QCOMPARE(resultados->item(0)->text(), u"Ninguna página contiene esas palabras."_s);
    }
};

QTEST_MAIN(PruebaAyuda)
#include "tst_ayuda.moc"
