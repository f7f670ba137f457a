#pragma once

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>

/// The top-level window called `nombre`, when it can be seen.
inline QWidget *ventanaVisible(const QString &nombre)
{
    for (auto *una : QApplication::topLevelWidgets()) {
        if (una->objectName() == nombre && una->isVisible())
            return una;
    }
    return nullptr;
}

/// The hands of a person at a screen: everything by the controls' names, with clicks and keys.
class Manos
{
public:
    explicit Manos(QWidget &pantalla)
        : m_pantalla(pantalla)
    {
    }

    /// The control called `nombre`; the test fails when there is none.
    template <class T = QWidget> T *control(const char *nombre) const
    {
        auto *hallado = m_pantalla.findChild<T *>(QString::fromLatin1(nombre));
        if (!hallado)
            QTest::qFail(nombre, __FILE__, __LINE__);
        return hallado;
    }

    void pulsar(const char *nombre) const
    {
        auto *widget = control(nombre);
        // a check box answers on its mark only
        const QPoint lugar = widget->inherits("QCheckBox") || widget->inherits("QRadioButton")
            ? QPoint(8, widget->height() / 2)
            : widget->rect().center();
        QTest::mouseClick(widget, Qt::LeftButton, {}, lugar);
    }

    /// Goes into a box with the mouse and types over what it holds.
    void escribir(const char *nombre, const QString &texto) const
    {
        auto *caja = control(nombre);
        QTest::mouseClick(caja, Qt::LeftButton, {}, caja->rect().center());
        QTest::keyClick(caja, Qt::Key_A, Qt::ControlModifier);
        if (texto.isEmpty())
            QTest::keyClick(caja, Qt::Key_Delete);
        else
            QTest::keyClicks(caja, texto);
    }

    /// Opens the menu of a place with the right button and chooses the entry called `entrada`.
    void elegirEnMenu(QAbstractScrollArea &zona, const QPoint &lugar, const char *entrada) const
    {
        QTimer::singleShot(0, &zona, [entrada] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            auto *accion = menu->findChild<QAction *>(QString::fromLatin1(entrada));
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
        });
        QContextMenuEvent evento(QContextMenuEvent::Mouse, lugar,
                                 zona.viewport()->mapToGlobal(lugar));
        QApplication::sendEvent(zona.viewport(), &evento);
    }

    void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) const
    {
        QWidget *foco = m_pantalla.focusWidget();
        QTest::keyClick(foco ? foco : &m_pantalla, tecla, con);
    }

    /// The texts, or another property, of the controls named, with "|" between them.
    QString textos(const char *nombres, const char *propiedad = "text") const
    {
        QStringList partes;
        for (const QByteArray &nombre : QByteArray(nombres).split(' '))
            partes += control(nombre)->property(propiedad).toString();
        return partes.join(u'|');
    }
    QString texto(const char *nombre) const { return control(nombre)->property("text").toString(); }

    /// Name of the control with the focus.
    QString foco() const
    {
        const QWidget *widget = m_pantalla.focusWidget();
        return widget ? widget->objectName() : QString();
    }

    /// What can be seen of the screen and not be used: controls without a name for a screen reader,
    /// columns narrower than their titles.
    QStringList defectos() const
    {
        QStringList hallados;
        for (auto *uno : m_pantalla.findChildren<QWidget *>()) {
            const bool ajeno = uno->objectName().startsWith(u"qt_"_s)
                || uno->inherits("QScrollArea") || qobject_cast<QComboBox *>(uno->parentWidget());
            if (ajeno || !uno->isVisible() || uno->focusPolicy() == Qt::NoFocus)
                continue;
            if (QAccessible::queryAccessibleInterface(uno)->text(QAccessible::Name).isEmpty())
                hallados += uno->objectName();
            const auto *lista = qobject_cast<QTableView *>(uno);
            const auto *titulos = lista ? lista->horizontalHeader() : nullptr;
            for (int i = 0; titulos && i < titulos->count(); ++i)
                if (!titulos->isSectionHidden(i)
                    && titulos->sectionSize(i) < titulos->sectionSizeHint(i))
                    hallados += uno->objectName() + QString::number(i);
        }
        return hallados;
    }

private:
    QWidget &m_pantalla;
};
