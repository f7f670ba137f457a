#include "declarants/frmDecDatos.h"
#include "declarations/FrmDatos430.h"
#include "declarations/FrmDatos480c.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "support/DeclaracionesPrueba.h"
#include "support/PantallaAbierta.h"

#include <QElapsedTimer>

#include <SQLiteCpp/Database.h>

/// Another program writes in the database while the user presses Save.
class TstFallosBloqueo : public QObject
{
    Q_OBJECT

private:
    /// Types into an open screen, saves while it is locked, types on and saves.
    template <class T>
    static void probar(PantallaAbierta<T> &p, const QList<std::pair<const char *, QString>> &datos,
                       const char *aceptar)
    {
        p.abrir();
        for (const auto &[caja, texto] : datos)
            p.manos->escribir(caja, texto);
        const auto visto = [&] {
            QStringList todo;
            for (const auto *caja : p.pantalla->template findChildren<QLineEdit *>())
                todo += caja->text();
            return todo;
        };
        p.manos->tecla(Qt::Key_Tab);
        const QStringList antes = visto();
        SQLite::Database otro(rutas().datos.toStdString(), SQLite::OPEN_READWRITE);
        otro.exec("BEGIN EXCLUSIVE");
        int vueltas = 0; // of the window's own events, while the message stands
        QTimer latido;
        QObject::connect(&latido, &QTimer::timeout, [&] { ++vueltas; });
        latido.start(0);
        QElapsedTimer reloj;
        reloj.start();
        const QString aviso = p.aviso(aceptar);
        const qint64 tardado = reloj.elapsed();
        QVERIFY2(aviso.contains(u"Otro programa está usando el fichero"), qPrintable(aviso));
        QVERIFY2(tardado < 1000, qPrintable(QString::number(tardado)));
        QVERIFY(vueltas > 0);
        QVERIFY(p.pantalla->isVisible() && p.pantalla->isEnabled() && !p.siguiente);
        QCOMPARE(visto(), antes);
        p.manos->escribir(datos.last().first, datos.last().second); // it takes what is typed
        p.manos->tecla(Qt::Key_Tab);
        QCOMPARE(visto(), antes);
        otro.exec("COMMIT");
        p.manos->pulsar(aceptar);
        QVERIFY(p.siguiente || !p.pantalla->isVisible());
    }

private Q_SLOTS:
    void declarante()
    {
        PantallaAbierta<frmDecDatos> p;
        unico::la<cDecDatos>().MODO(u"A"_s);
        probar(p,
               {{"txtdni", u"12345678z"_s},
                {"txtnombre", u"seguros uno"_s},
                {"txtdomicilio", u"mayor"_s},
                {"txtcodpos", u"20001"_s},
                {"txtcodmun", u"1"_s},
                {"txttelefono", u"943000000"_s}},
               "cmdAceptar");
        QVERIFY(unico::la<cDecDatos>().ObtenerCodigoDeclarante(u"12345678Z"_s) > 0);
    }
    void mensual()
    {
        PantallaAbierta<FrmDatos430> p;
        const qint32 csco = Entorno::altaDeclarante();
        tomarCabecera(csco, u"430"_s, 1);
        unico::la<cDatos430>().MODO(u"A"_s);
        probar(p, {{"txtbliq", u"1234,56"_s}}, "cmdAceptar");
        QCOMPARE(declaracionesDe(csco).value(0).toList().value(FilaDeclaracion::IMPORTE), 9876.0);
    }
    void anual()
    {
        PantallaAbierta<FrmDatos480c> p;
        const qint32 csco = Entorno::altaDeclarante();
        tomarCabecera(csco, u"480"_s, 12);
        auto &registro = unico::la<cDatos480>();
        registro.MODO(u"A"_s);
        Registro tipos;
        registro.CalcularTipoAnual(tipos);
        registro.Nueva(tipos);
        probar(p, {{"txt79ba3", u"100"_s}, {"txt80cu3", u"12,34"_s}}, "cmdAceptar");
        QCOMPARE(declaracionesDe(csco).value(0).toList().value(FilaDeclaracion::IMPORTE), 1234.0);
    }
};

QTEST_MAIN(TstFallosBloqueo)
#include "tst_fallos_bloqueo.moc"
