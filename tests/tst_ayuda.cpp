#include "app/MDIOstrel.h"
#include "help/TeclaAyuda.h"
#include "help/TemasAyuda.h"
#include "resources/TablaMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QDialog>
#include <QDirIterator>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextBrowser>

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
    if (texto.endsWith(u'…')) // a button that asks for more is named without its dots
        texto.chop(1);
    QStringList partes;
    for (const QString &parte : texto.split(hueco))
        partes.append(QRegularExpression::escape(parte));
    return partes.join(u".+?"_s);
}

/// The help: its topics against the program's real texts and screens, and its window.
class TstAyuda : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;

    /// The pages' sources, by file.
    static QMap<QString, QString> paginas(const QString &idioma)
    {
        QMap<QString, QString> leidas;
        const QDir carpeta(QStringLiteral(OSTREL_SRC) + u"/resources/ayuda/"_s + idioma);
        for (const QString &fichero : carpeta.entryList({u"*.htm"_s}))
            leidas[fichero] = contenido(carpeta.filePath(fichero));
        return leidas;
    }
    static void enlacesYCitas(const QString &idioma)
    {
        QStringList patrones;
        for (const Mensaje &mensaje : tablaMensajes()) {
            const QString texto = idioma == u"c" ? mensaje.castellano : mensaje.euskera;
            if (!texto.startsWith(u"%1: ") && !texto.startsWith(u"%1\n")) // would be anything
                patrones.append(patronDe(texto));
        }
        const QRegularExpression deLaTabla(u"^(?:"_s + patrones.join(u'|') + u")$"_s);
        const auto todas = paginas(idioma);
        for (const auto &[fichero, html] : todas.asKeyValueRange()) {
            for (const QString &enlace : capturas(u"href=\"([^\"]*)\""_s, html))
                QVERIFY2(todas.contains(enlace), qPrintable(fichero + u" -> "_s + enlace));
            for (const QString &cita : capturas(u"<(?:b|dt)>(.*?)</(?:b|dt)>"_s, html))
                QVERIFY2(deLaTabla.match(cita).hasMatch(), qPrintable(fichero + u": "_s + cita));
        }
    }

    static void contenidoYMensajes(const QString &idioma)
    {
        unico::la<CEntrada>().IDI(idioma.toUpper());
        const auto todas = paginas(idioma);
        QStringList enContenido;
        for (const auto &uno : ayuda::temas()) {
            enContenido.append(uno.nombre);
            QVERIFY2(!uno.titulo.isEmpty() && uno.claves.size() > 1 && uno.texto.size() > 200,
                     qPrintable(uno.nombre));
        }
        QCOMPARE(enContenido.first(), ayuda::portada());
        enContenido.sort();
        QCOMPARE(enContenido, todas.keys());
        // every message that asks the user for something is explained
        const QString citados
            = capturas(u"<dt>(.*?)</dt>"_s, QStringList(todas.values()).join(u'\n')).join(u'\n');
        using enum Msj;
        const auto tramos // first and last, first and last
            = QList<Msj>() << AvisoTieneDeclaraciones << PreguntaBorrarDeclarante << ErrorDni
                           << ErrorPeriodoLista << PreguntaBorrarDeclaracion << ErrorFechaAnterior
                           << PreguntaSobreescribir << ErrorTotal480 << SinDeclaracionesMensuales
                           << SinDeclaracionesMensuales << NoExisteFicheroImportar
                           << NoExisteFicheroImportar << SinNavegador << SinNavegador
                           << FalloConexion << FalloConexion << DatosActualizacionErroneos
                           << DatosActualizacionErroneos << FalloNoExiste << FalloLecturaEscritura
                           << FalloEnlaceRoto << FalloEnlaceRoto << FalloIncompleta << FalloLectura
                           << FalloSinDeclarante << FalloSinDeclaracion << FicheroNoRegular
                           << FicheroDelPrograma << PreguntaCambioAjeno << PreguntaCambioAjeno
                           << EliminadoEnOtraCopia << EliminadoEnOtraCopia
                           << PreguntaCerrarSinGuardar << PreguntaCerrarSinGuardar
                           << ImporteIlegible << ImporteTotalExcedido;
        for (qsizetype i = 0; i < tramos.size(); i += 2) {
            for (int n = static_cast<int>(tramos[i]); n <= static_cast<int>(tramos[i + 1]); ++n) {
                const QString texto = msj(static_cast<Msj>(n));
                const QRegularExpression linea(u"^"_s + patronDe(texto) + u"$"_s,
                                               QRegularExpression::MultilineOption);
                QVERIFY2(linea.match(citados).hasMatch(), qPrintable(texto));
            }
        }
    }
    static QWidget *ventanaAyuda() { return ventanaVisible(u"FrmAyuda"_s); }
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
        QStringList euskera = paginas(u"e"_s).keys();
        QVERIFY(euskera.size() > 15);
        euskera.replaceInStrings(u"kap.htm"_s, u"cap.htm"_s).sort();
        QCOMPARE(euskera, paginas(u"c"_s).keys());
    }

    void textosDeLosTemas()
    {
        for (const QString &idioma : {u"c"_s, u"e"_s}) {
            enlacesYCitas(idioma);
            contenidoYMensajes(idioma);
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
        const QString ventana = paginas(u"c"_s)[u"mdiostrel.htm"_s];
        for (const auto *una : principal.findChildren<QAction *>()) // every entry is explained
            if (una->objectName().startsWith(u"mnu"))
                QVERIFY2(ventana.contains(u"<b>"_s + una->text().remove(u'&') + u"</b>"_s),
                         qPrintable(una->text()));
        QTest::keyClick(&principal, Qt::Key_O, Qt::ControlModifier);
        QTest::keyClick(&principal, Qt::Key_F1); // the focus is in no screen
        QCOMPARE(tema(), u"frmdeclista.htm"_s);
        QTest::keyClick(&principal, Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(Manos(principal).control("txtdni"), Qt::Key_F1);
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
        QVERIFY(ventanaAyuda()->screen()->availableSize().width() > ventanaAyuda()->width());
        for (int i = 2; i >= 0; --i) {
            manos.control<QTabWidget>("tabAyuda")->setCurrentIndex(i);
            QCOMPARE(manos.defectos(), QStringList());
        }
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

QTEST_MAIN(TstAyuda)
#include "tst_ayuda.moc"
