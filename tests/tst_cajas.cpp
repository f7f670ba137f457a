#include "app/Estilo.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/CajaImporte.h"
#include "widgets/CajaTexto.h"
#include "widgets/PantallaBase.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A screen with one box of each kind.
class Cajas : public PantallaBase
{
public:
    Cajas()
        : PantallaBase(u"Cajas"_s)
        , importe(new CajaImporte(u"importe"_s, this))
        , texto(new CajaTexto(u"texto"_s, 6, CajaTexto::Texto, this))
        , cifras(new CajaTexto(u"cifras"_s, 3, CajaTexto::Cifras, this))
        , marca(new QCheckBox(this))
    {
        auto *columna = new QVBoxLayout(this);
        for (QWidget *caja : {static_cast<QWidget *>(importe), static_cast<QWidget *>(texto),
                              static_cast<QWidget *>(cifras), static_cast<QWidget *>(marca)})
            columna->addWidget(caja);
        setWindowTitle(u"Cajas"_s);
    }
    void Anadir_captions() override {}

    CajaImporte *importe;
    CajaTexto *texto;
    CajaTexto *cifras;
    QCheckBox *marca;
};

double luz(const QColor &color)
{
    const auto canal
        = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * canal(color.redF()) + 0.7152 * canal(color.greenF())
        + 0.0722 * canal(color.blueF());
}

double contraste(const QColor &uno, const QColor &otro)
{
    const double a = luz(uno) + 0.05;
    const double b = luz(otro) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// The best contrast against the window of any point in the first columns of `control`.
double contrasteBorde(QWidget *control, int ancho)
{
    const QImage imagen = control->window()->grab().toImage();
    const QPoint esquina = control->mapTo(control->window(), QPoint(0, control->height() / 2));
    const QColor fondo = control->palette().color(QPalette::Window);
    double mejor = 1;
    for (int x = 0; x < ancho; ++x)
        mejor = std::max(mejor, contraste(imagen.pixelColor(esquina + QPoint(x, 0)), fondo));
    return mejor;
}

} // namespace

/// The entry boxes, with keys and the clipboard.
class TstCajas : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;
    std::unique_ptr<Cajas> m_pantalla;

    /// Types letters of any language.
    static void teclear(QWidget *caja, const QString &texto)
    {
        for (const QChar c : texto) {
            QKeyEvent tecla(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
            QApplication::sendEvent(caja, &tecla);
        }
    }
    void pegar(QWidget *caja, const QString &texto) const
    {
        QApplication::clipboard()->setText(texto);
        caja->setFocus();
        QTest::keyClick(caja, Qt::Key_V, Qt::ControlModifier);
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
        m_pantalla = std::make_unique<Cajas>();
        m_pantalla->show();
        QApplication::setActiveWindow(m_pantalla.get());
    }
    void cleanup()
    {
        m_pantalla.reset();
        m_mensajes.reset();
        m_entorno.reset();
    }

    void importes_data()
    {
        QTest::addColumn<QString>("tecleado");
        QTest::addColumn<QString>("pegado");
        QTest::addColumn<QString>("mostrado");
        QTest::newRow("cents") << u"1234,5"_s << QString() << u"1.234,50"_s;
        QTest::newRow("zero") << u"0"_s << QString() << QString();
        QTest::newRow("sum") << u"100+25,5-3"_s << QString() << u"122,50"_s;
        QTest::newRow("sum from below zero") << u"-5-2,25"_s << QString() << u"-7,25"_s;
        QTest::newRow("sum with groups") << u"1.000+1"_s << QString() << u"1.001,00"_s;
        QTest::newRow("euros") << QString() << u"1.234,56 €"_s << u"1.234,56"_s;
        QTest::newRow("blanks") << QString() << u" 12 345,67"_s << u"12.345,67"_s;
        QTest::newRow("hard blanks") << QString() << u"12\u00A0345,67\u202F€"_s << u"12.345,67"_s;
        QTest::newRow("points") << QString() << u"1234.56"_s << u"1.234,56"_s;
        QTest::newRow("largest") << u"9999999999999,99"_s << QString() << u"9.999.999.999.999,99"_s;
    }
    void importes()
    {
        QFETCH(QString, tecleado);
        QFETCH(QString, pegado);
        QFETCH(QString, mostrado);
        if (pegado.isEmpty())
            QTest::keyClicks(m_pantalla->importe, tecleado);
        else
            pegar(m_pantalla->importe, pegado);
        QTest::keyClick(m_pantalla->importe, Qt::Key_Tab);
        QCOMPARE(m_pantalla->importe->text(), mostrado);
        QVERIFY(m_pantalla->texto->hasFocus());
    }

    void importesIlegibles()
    {
        for (const auto &[tecleado, motivo] :
             {std::pair{u"5+"_s, u"«5+» no es un importe."_s},
              {u"-"_s, u"«-» no es"_s},
              {u"9999999999999+1"_s, u"El importe no puede tener más de 13"_s}}) {
            m_mensajes->responder(QMessageBox::Ok);
            m_pantalla->importe->mostrarImporte(0);
            m_pantalla->importe->setFocus();
            QTest::keyClicks(m_pantalla->importe, tecleado);
            QTest::keyClick(m_pantalla->importe, Qt::Key_Tab);
            QApplication::setActiveWindow(m_pantalla.get());
            const auto cajas = m_mensajes->tomar();
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
    void loDescartadoSeDice_data()
    {
        QTest::addColumn<QString>("caja");
        QTest::addColumn<QString>("tecleado");
        QTest::addColumn<QString>("pegado");
        QTest::addColumn<QString>("queda");
        QTest::addColumn<QString>("dicho");
        QTest::newRow("accent typed") << u"texto"_s << u"marí"_s << QString() << u"MAR"_s
                                      << u"«í» no se admite en esta casilla."_s;
        QTest::newRow("accent pasted")
            << u"texto"_s << QString() << u"Marí"_s << u"MARÍ"_s << QString();
        QTest::newRow("sign pasted") << u"texto"_s << QString() << u"A@B#"_s << u"AB"_s
                                     << u"«@#» no se admite en esta casilla."_s;
        QTest::newRow("too long") << u"texto"_s << u"ñandúes"_s << QString() << u"ÑANDES"_s
                                  << u"«ú» no se admite en esta casilla."_s;
        QTest::newRow("full") << u"cifras"_s << u"1234"_s << QString() << u"123"_s
                              << u"En esta casilla caben 3 caracteres."_s;
        QTest::newRow("letter") << u"cifras"_s << u"1x2"_s << QString() << u"12"_s
                                << u"«x» no se admite en esta casilla."_s;
        QTest::newRow("amount") << u"importe"_s << u"1x"_s << QString() << u"1"_s
                                << u"«x» no se admite en esta casilla."_s;
        QTest::newRow("amount pasted") << u"importe"_s << QString() << u"12 de mayo"_s << QString()
                                       << u"«12 de mayo» no es un importe."_s;
    }
    void loDescartadoSeDice()
    {
        QFETCH(QString, tecleado);
        QFETCH(QString, pegado);
        QFETCH(QString, caja);
        auto *elegida = m_pantalla->findChild<QLineEdit *>(caja);
        const QSignalSpy dicho(m_pantalla.get(), &PantallaBase::dicho);
        if (pegado.isEmpty())
            teclear(elegida, tecleado);
        else
            pegar(elegida, pegado);
        QTEST(elegida->text(), "queda");
        QTEST(dicho.value(0).value(0).toString(), "dicho");
        QCOMPARE(dicho.isEmpty() || dicho.value(0).value(1).toBool(), true);
    }

    void contrastes_data()
    {
        QTest::addColumn<QColor>("fondo");
        QTest::newRow("light") << QColor(Qt::white);
        QTest::newRow("dark") << QColor(Qt::black);
    }
    void contrastes()
    {
        QFETCH(QColor, fondo);
        QApplication::setPalette(QPalette(fondo));
        aplicarEstilo();
        m_pantalla = std::make_unique<Cajas>();
        m_pantalla->show();
        QApplication::setActiveWindow(m_pantalla.get());
        m_pantalla->marca->setFocus();
        QVERIFY(contrasteBorde(m_pantalla->texto, 3) >= 3);
        QVERIFY(contrasteBorde(m_pantalla->marca, 16) >= 3);
        m_pantalla->texto->setFocus(Qt::TabFocusReason);
        QVERIFY(contrasteBorde(m_pantalla->texto, 3) >= 3);
        // the mark itself, on its patch
        m_pantalla->marca->setChecked(true);
        const QPalette colores = m_pantalla->palette();
        QVERIFY(contraste(colores.color(QPalette::Text), colores.color(QPalette::Base)) >= 4.5);
        QVERIFY(
            contraste(colores.color(QPalette::HighlightedText), colores.color(QPalette::Highlight))
            >= 4.5);
        // a disabled box is no longer the colour of one to fill in
        QVERIFY(colores.color(QPalette::Disabled, QPalette::Base)
                != colores.color(QPalette::Active, QPalette::Base));
    }
};

QTEST_MAIN(TstCajas)
#include "tst_cajas.moc"
