#include "app/Estilo.h"
#include "app/MDIOstrel.h"
#include "app/Pantallas.h"
#include "campaign/cPendientes.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "maintenance/FrmIdioma.h"
#include "maintenance/FrmSinConexion.h"
#include "maintenance/FrmVersionCheck.h"
#include "support/Entorno.h"
#include "support/LineasPrueba.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>
#include <QTableView>
#include <QTest>
#include <QTimer>

/// What every control of every screen says, in both languages and in the order of Tab: its text,
/// its tip, what screen readers are told, the titles of its columns, keys and menus. No two have
/// the same access key, and the button to leave leaves.
class TstControles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void todas()
    {
        QCoreApplication::setApplicationVersion(u"1.2.3"_s);
        const Entorno entorno;
        aplicarEstilo();
        qputenv("HOME", entorno.ruta(u"."_s).toUtf8());
        qputenv("CUPS_SERVER", "/no"); // the same without printers as with some
        const qint32 csco = Entorno::altaDeclarante();
        Entorno::altaDeclaracion(csco, 2026, 3);
        QByteArray dicho;
        for (int i = int(Pantalla::Ninguna) + 1; i <= int(Pantalla::AcercaDe); ++i) {
            const DatosPantalla &datos = *datosPantalla(Pantalla(i));
            preparar(csco, datos.cual);
            QString pantalla = enLosDosIdiomas([&] { return datos.crear(nullptr); });
            if (datos.cual == Pantalla::Pendientes)
                pantalla.replace(
                    QString::number(cPendientes::UltimaTerminada(QDate::currentDate()).ejercicio),
                    u"AAAA"_s);
            dicho += pantalla.toUtf8() + "frame " + QByteArray::number(datos.marco) + '\n';
        }
        for (const auto &crear :
             {nueva<FrmIdioma>, nueva<FrmVersionCheck>, nueva<FrmSinConexion>, nueva<MDIOstrel>})
            dicho += enLosDosIdiomas(crear).toUtf8();
        for (const QString &dia : {u"dd/MM/yyyy"_s, u"yyyy/MM/dd"_s})
            dicho.replace(QDate::currentDate().toString(dia).toUtf8(), "HOY");
        dicho.replace(QFileInfo(entorno.ruta(u"."_s)).canonicalFilePath().toUtf8(), "CARPETA");
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/controles.txt");
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            lineas::escribir(ruta, dicho);
        const auto dichas = dicho.split('\n'), debidas = lineas::leer(ruta).split('\n');
        for (qsizetype i = 0; i < std::min(dichas.size(), debidas.size()); ++i)
            QCOMPARE(dichas[i], debidas[i]);
        QCOMPARE(dichas.size(), debidas.size());
    }

private:
    static void preparar(qint32 csco, Pantalla cual)
    {
        auto &resumen = unico::la<cDecResumen>();
        resumen.CSCO(csco);
        resumen.EJERCICIO(2026);
        resumen.CambiarModelo(cual == Pantalla::Datos430 ? u"430"_s : u"480"_s);
        resumen.PERIODO(12);
        unico::la<cDatos430>().MODO(u"A"_s);
        unico::la<cDatos480>().MODO(u"A"_s);
        unico::la<cDecDatos>().MODO(u"A"_s);
    }

    template <class T> static QWidget *nueva() { return new T(nullptr); }

    static QString enLosDosIdiomas(const std::function<QWidget *()> &crear)
    {
        unico::la<CEntrada>().IDI(u"C"_s);
        const std::unique_ptr<QWidget> pantalla(crear());
        pantalla->resize(pantalla->sizeHint());
        pantalla->show();
        QTest::qWait(1); // what is read once the screen stands
        const QString dicho = u"\n== %1\n"_s.arg(pantalla->objectName()) + lo(*pantalla);
        Entorno::pasarAEuskera(*pantalla);
        QTest::qWait(1);
        const QString ambos = dicho + lo(*pantalla);
        const QImage pintada = pantalla->grab().toImage();
        QImage vacia = pintada;
        vacia.fill(pintada.pixelColor(0, 0));
        [&] { QVERIFY2(pintada != vacia, qPrintable(pantalla->objectName())); }();
        for (const char *salida : {"cmdCancelar", "btnCancelar", "cmdCerrar"})
            if (auto *boton = pantalla->findChild<QWidget *>(QString::fromLatin1(salida))) {
                QTest::mouseClick(boton, Qt::LeftButton);
                [&] { QVERIFY2(!pantalla->isVisible(), qPrintable(pantalla->objectName())); }();
            }
        return ambos;
    }

    static QString lo(QWidget &pantalla)
    {
        QStringList filas{pantalla.windowTitle()};
        QSet<QKeySequence> teclas;
        for (auto *control = pantalla.nextInFocusChain(); control != &pantalla;
             control = control->nextInFocusChain())
            if ((!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
                || control->inherits("QLabel")) {
                filas += fila(*control);
                const auto tecla = QKeySequence::mnemonic(control->property("text").toString());
                if (tecla.isEmpty() || !control->isVisible())
                    continue;
                [&] { QVERIFY2(!teclas.contains(tecla), qPrintable(filas.constLast())); }();
                teclas += tecla;
            }
        for (const auto *menu : pantalla.findChildren<QMenu *>())
            if (!menu->objectName().isEmpty())
                filas += fila(*menu) + entradas(*menu);
        for (const auto *atajo : pantalla.findChildren<QShortcut *>())
            filas += atajo->parent()->objectName() + u": "_s + atajo->key().toString();
        for (auto *lista : pantalla.findChildren<QTableView *>())
            filas += lista->objectName() + menuDe(*lista);
        for (const auto *accion : pantalla.findChildren<QAction *>())
            if (!accion->objectName().isEmpty())
                filas += unidas({accion->objectName(), accion->isEnabled() ? QString() : u"-"_s,
                                 accion->text(), accion->toolTip(), accion->statusTip(),
                                 accion->shortcut().toString()});
        return filas.join(u'\n') + u'\n';
    }
    static QString entradas(const QMenu &menu)
    {
        QString textos;
        for (const auto *accion : menu.actions())
            textos += u'|' + (accion->isSeparator() ? u"--"_s : accion->text());
        return textos;
    }
    /// What the right button offers.
    static QString menuDe(QTableView &lista)
    {
        QString textos;
        QTimer::singleShot(0, &lista, [&] {
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                textos = entradas(*menu);
                menu->close();
            }
        });
        QContextMenuEvent evento(QContextMenuEvent::Mouse, {5, 5}, lista.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(lista.viewport(), &evento);
        QCoreApplication::processEvents();
        return textos;
    }
    static QString fila(const QWidget &control)
    {
        QString estado = control.isEnabled() ? QString() : u"-"_s;
        estado += control.isVisible() ? QString() : u"?"_s;
        estado += control.focusPolicy() & Qt::TabFocus ? u"*"_s : QString();
        QStringList partes{control.objectName(), estado};
        for (const char *propiedad : {"text", "title", "placeholderText", "toolTip",
                                      "accessibleName", "accessibleDescription"})
            partes += control.property(propiedad).toString();
        if (const auto *vista = qobject_cast<const QAbstractItemView *>(&control);
            vista && vista->model())
            for (int c = 0; c < vista->model()->columnCount(); ++c)
                for (const auto papel : {Qt::DisplayRole, Qt::ToolTipRole})
                    partes += vista->model()->headerData(c, Qt::Horizontal, papel).toString();
        return unidas(partes);
    }
    static QString unidas(QStringList partes)
    {
        while (!partes.isEmpty() && partes.constLast().isEmpty())
            partes.removeLast();
        return partes.join(u'|').replace(u'\n', u' ');
    }
};

QTEST_MAIN(TstControles)
#include "tst_controles.moc"
