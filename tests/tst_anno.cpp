#include "app/MDIOstrel.h"
#include "core/Textos.h"
#include "declarants/cDecResumen.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/PantallaBase.h"

#include <QAbstractButton>
#include <QApplication>

using namespace Qt::StringLiterals;

/// A whole year filed in the main window: twelve 430s, their 480 as proposed after December, and
/// the January after it. By keyboard; a button's access key the first time, later with the mouse,
/// for each such key takes Qt a sixth of a second.
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
    /// Presses the access key that the caption of a button underlines.
    void acceso(const char *boton)
    {
        const Manos manos(*m_pantalla);
        const QString nombre = m_pantalla->objectName() + QString::fromLatin1(boton);
        if (m_conTeclado.contains(nombre)) {
            manos.pulsar(boton);
            return;
        }
        m_conTeclado.insert(nombre);
        const QString texto = manos.control<QAbstractButton>(boton)->text();
        const QChar letra = texto.at(texto.indexOf(u'&') + 1).toUpper();
        QVERIFY(letra.isLetter());
        const QPointer<PantallaBase> antes = m_pantalla;
        const QString foco = manos.foco();
        tecla(static_cast<Qt::Key>(letra.unicode()), Qt::AltModifier);
        QTRY_VERIFY_WITH_TIMEOUT(!antes || antes->isHidden() || manos.foco() != foco, 1000);
    }
    /// Both presses for a new return; `primera`: nothing is proposed yet.
    void nueva(bool primera)
    {
        esperar("FrmDecResumen");
        acceso("ImgNueva");
        QTRY_COMPARE(Manos(*m_pantalla).foco(), u"txtejer"_s);
        if (primera) {
            escribir(u"2026"_s);
            tecla(Qt::Key_Tab);
            escribir(u"430"_s);
            tecla(Qt::Key_Tab);
            escribir(nombreMes(1));
        }
        acceso("ImgNueva");
    }
    void declarar430(const QString &base, bool primera)
    {
        nueva(primera);
        esperar("FrmDatos430");
        escribir(base);
        acceso("cmdAceptar");
    }

    PantallaBase *m_pantalla = nullptr;
    QSet<QString> m_conTeclado; ///< buttons already reached by their access keys

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
        acceso("cmdSiguiente");
        esperar("FrmDatos480b");
        acceso("cmdSiguiente");
        esperar("FrmDatos480c");
        escribir(u"7806"_s);
        acceso("cmdAceptar");
        declarar430(u"1"_s, false);
        esperar("FrmDecResumen");

        const auto filas = unico::la<cDecResumen>().CargarDeclaraciones();
        QCOMPARE(filas.size(), 14);
        QCOMPARE(filas[11].importe, 9604.0); // 8 % of 1,200.50
        QCOMPARE(filas[12].modelo, u"480"_s);
        QCOMPARE(filas[12].importe, 62448.0);
        QCOMPARE(int(filas[13].ejercicio), 2027);
        QCOMPARE(int(filas[13].periodo), 1);
        m_ventana.reset();
    }
};

QTEST_MAIN(TstAnno)
#include "tst_anno.moc"
