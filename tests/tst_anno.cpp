#include "app/MDIOstrel.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/PantallaBase.h"

/// A whole year filed in the main window: twelve 430s, their 480 as proposed after December, and
/// the January after it. Boxes by keyboard, buttons with the mouse.
class TstAnno : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<MDIOstrel> m_ventana;

    static void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {})
    {
        QTest::keyClick(QApplication::focusWidget(), tecla, con);
    }
    static void escribir(const QString &texto)
    {
        QTest::keyClicks(QApplication::focusWidget(), texto);
    }
    /// The screen called `nombre`, once it is there with the focus in it.
    void esperar(const char *nombre)
    {
        const auto visible = [&]() -> PantallaBase * {
            for (auto *una : m_ventana->findChildren<PantallaBase *>(QString::fromLatin1(nombre)))
                if (una->isVisible())
                    return una;
            return nullptr;
        };
        QTRY_VERIFY(visible());
        m_pantalla = visible();
        QTRY_VERIFY(m_pantalla->isAncestorOf(QApplication::focusWidget()));
    }
    void pulsar(const char *boton) const { Manos(*m_pantalla).pulsar(boton); }
    /// Both presses for a new return; `primera`: nothing is proposed yet.
    void nueva(bool primera)
    {
        esperar("FrmDecResumen");
        pulsar("ImgNueva");
        QTRY_COMPARE(Manos(*m_pantalla).foco(), u"txtejer"_s);
        if (primera) {
            escribir(u"2026"_s);
            tecla(Qt::Key_Tab);
            escribir(u"430"_s);
            tecla(Qt::Key_Tab);
            escribir(nombreMes(1));
        }
        pulsar("ImgNueva");
    }
    void declarar430(const QString &base, bool primera)
    {
        nueva(primera);
        esperar("FrmDatos430");
        escribir(base);
        pulsar("cmdAceptar");
    }

    PantallaBase *m_pantalla = nullptr;

private Q_SLOTS:
    void unAnno()
    {
        const Entorno entorno(u"E"_s);
        const ConductorMensajes ninguno;
        Entorno::altaDeclarante();
        m_ventana = std::make_unique<MDIOstrel>();
        m_ventana->show();
        m_ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
        QTest::keyClick(m_ventana.get(), Qt::Key_O, Qt::ControlModifier);
        esperar("FrmDecLista");
        tecla(Qt::Key_Return);

        for (int mes = 1; mes <= 12; ++mes)
            declarar430(u"%1,50"_s.arg(mes * 100), mes == 1);
        nueva(false);
        esperar("FrmDatos480a");
        escribir(u"7806,00"_s);
        pulsar("cmdSiguiente");
        esperar("FrmDatos480b");
        pulsar("cmdSiguiente");
        esperar("FrmDatos480c");
        escribir(u"7806"_s);
        pulsar("cmdAceptar");
        declarar430(u"1"_s, false);
        esperar("FrmDecResumen");

        const auto filas = unico::la<cDecResumen>().CargarDeclaraciones();
        QCOMPARE(filas.size(), 14);
        QStringList ultimas;
        for (const auto &fila : filas.mid(11))
            ultimas += unidos({fila.ejercicio, fila.periodo, fila.modelo, fila.importe});
        QCOMPARE(ultimas, // 8 % of 1,200.50; the year's
                 (QStringList{u"2026|12|430|9604"_s, u"2026|12|480|62448"_s, u"2027|1|430|8"_s}));
        m_ventana.reset();
    }
};

QTEST_MAIN(TstAnno)
#include "tst_anno.moc"
