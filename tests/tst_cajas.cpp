#include "support/PantallaAbierta.h"
#include "widgets/CajaImporte.h"
#include "widgets/CajaTexto.h"

#include <QClipboard>
#include <QVBoxLayout>

namespace {

/// A screen with one box of each kind.
class Cajas : public PantallaBase
{
public:
    Cajas()
        : PantallaBase(u"Cajas"_s)
    {
        auto *columna = new QVBoxLayout(this);
        for (QWidget *caja : QWidgetList{importe, texto, cifras})
            columna->addWidget(caja);
        setWindowTitle(u"Cajas"_s);
    }
    void Anadir_captions() override {}

    CajaImporte *importe = new CajaImporte(u"importe"_s, this);
    CajaTexto *texto = new CajaTexto(u"texto"_s, 6, CajaTexto::Texto, this);
    CajaTexto *cifras = new CajaTexto(u"cifras"_s, 3, CajaTexto::Cifras, this);
};

} // namespace

/// The entry boxes, with keys and the clipboard.
class TstCajas : public QObject
{
    Q_OBJECT

private:
    std::optional<PantallaAbierta<Cajas>> m_abierta;
    Cajas *m_pantalla = nullptr;

    void abrir()
    {
        m_abierta->abrir();
        m_pantalla = m_abierta->pantalla.get();
    }
    /// Types letters of any language, or pastes what comes after "^V".
    static void meter(QWidget *caja, const QString &texto)
    {
        caja->setFocus();
        if (texto.startsWith(u"^V")) {
            QApplication::clipboard()->setText(texto.mid(2));
            QTest::keyClick(caja, Qt::Key_V, Qt::ControlModifier);
            return;
        }
        for (const QChar c : texto) {
            QKeyEvent tecla(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
            QApplication::sendEvent(caja, &tecla);
        }
    }

private Q_SLOTS:
    void init()
    {
        m_abierta.emplace();
        abrir();
    }
    void cleanup() { m_abierta.reset(); }

    void importes()
    {
        // what is typed, or pasted = what is shown
        for (const QString &caso :
             u"1234,5=1.234,50;0=;100+25,5-3=122,50;-5-2,25=-7,25;1.000+1=1.001,00;12a3=123,00;"
             "1,239=1,23;12345678901234=1.234.567.890.123,00;^V1.234,56 €=1.234,56;"
             "^V 12 345,67=12.345,67;^V12\u00A0345,67\u202F€=12.345,67;^V1234.56=1.234,56;"
             "9999999999999,99=9.999.999.999.999,99"_s.split(u';')) {
            m_pantalla->importe->setFocus();
            m_pantalla->importe->selectAll();
            meter(m_pantalla->importe, caso.section(u'=', 0, 0));
            QTest::keyClick(m_pantalla->importe, Qt::Key_Tab);
            QCOMPARE(m_pantalla->importe->text(), caso.section(u'=', 1));
            QVERIFY(m_pantalla->texto->hasFocus());
        }
        // a digit more within an amount that the program has grouped
        m_pantalla->importe->setFocus();
        QTest::keyClick(m_pantalla->importe, Qt::Key_Home);
        QTest::keyClick(m_pantalla->importe, Qt::Key_Delete);
        QTest::keyClick(m_pantalla->importe, Qt::Key_Tab);
        QCOMPARE(m_pantalla->importe->text(), u"999.999.999.999,99"_s);
        // and one like those around it, where there is room and where there is none
        for (const auto &[antes, despues] :
             {std::pair{u"AA"_s, u"AAA"_s}, {u"AAAAAA"_s, u"AAAAAA"_s}}) {
            m_pantalla->texto->mostrar(antes);
            m_pantalla->texto->setCursorPosition(1);
            QTest::keyClicks(m_pantalla->texto, u"A"_s);
            QCOMPARE(m_pantalla->texto->text(), despues);
        }
    }

    void importesIlegibles()
    {
        for (const auto &[tecleado, motivo] :
             {std::pair{u"5+"_s, u"«5+» no es un importe."_s},
              {u"-"_s, u"«-» no es"_s},
              {u"9999999999999+1"_s, u"El importe no puede tener más de 13"_s}}) {
            m_abierta->mensajes.responder(QMessageBox::Ok);
            m_pantalla->importe->mostrarImporte(0);
            meter(m_pantalla->importe, tecleado);
            QTest::keyClick(m_pantalla->importe, Qt::Key_Tab);
            QApplication::setActiveWindow(m_pantalla);
            const auto cajas = m_abierta->mensajes.tomar();
            QCOMPARE(cajas.size(), 1);
            QCOMPARE(cajas.front().titulo, u"Cajas"_s);
            QVERIFY2(cajas.front().texto.startsWith(motivo), qPrintable(cajas.front().texto));
            QTRY_VERIFY(m_pantalla->importe->hasFocus());
        }
        m_pantalla->importe->mostrarImporte(0);
    }

    void puntoDelTeclado()
    {
        QTest::keyClicks(m_pantalla->importe, u"12"_s);
        QKeyEvent punto(QEvent::KeyPress, Qt::Key_Period, Qt::KeypadModifier, u"."_s);
        QApplication::sendEvent(m_pantalla->importe, &punto);
        QCOMPARE(m_pantalla->importe->text(), u"12,"_s);
    }

    void alEntrarSeSeleccionaTodo()
    {
        m_pantalla->texto->mostrar(u"ABC"_s);
        m_pantalla->texto->setFocus(Qt::TabFocusReason);
        QCOMPARE(m_pantalla->texto->selectedText(), u"ABC"_s);
        m_pantalla->cifras->setFocus();
        QTest::mouseClick(m_pantalla->texto, Qt::LeftButton);
        QCOMPARE(m_pantalla->texto->selectedText(), u"ABC"_s);
    }

    /// What a key or the clipboard brings that has no place is told, not lost in silence.
    void loDescartadoSeDice()
    {
        const QString no = u" no se admite en esta casilla."_s;
        for (const QString &caso :
             {u"texto|marí|MAR|«í»"_s + no, u"texto|^VMarí|MARÍ|"_s, u"texto|^VA@B#|AB|«@#»"_s + no,
              u"texto|ñandúes|ÑANDES|«ú»"_s + no,
              u"cifras|1234|123|En esta casilla caben 3 caracteres."_s, u"cifras|1x2|12|«x»"_s + no,
              u"importe|1x|1|«x»"_s + no,
              u"importe|^V12 de mayo||«12 de mayo» no es un importe."_s}) {
            abrir();
            const QStringList partes = caso.split(u'|');
            auto *caja = m_pantalla->findChild<QLineEdit *>(partes[0]);
            const QSignalSpy dicho(m_pantalla, &PantallaBase::dicho);
            meter(caja, partes[1]);
            QCOMPARE(caja->text() + u'|' + dicho.value(0).value(0).toString(),
                     partes[2] + u'|' + partes[3]);
            QVERIFY(dicho.isEmpty() || dicho.value(0).value(1).toBool());
        }
    }
};

QTEST_MAIN(TstCajas)
#include "tst_cajas.moc"
