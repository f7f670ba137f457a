#pragma once

#include "widgets/Mensajes.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

/// Answers the program's message boxes, the real ones, by clicking their buttons. A box that nobody
/// expected, and an answer that nobody asked for, fail the test.
class ConductorMensajes
{
public:
    struct Mostrado
    {
        QMessageBox::Icon icono;
        QString titulo;
        QString texto;
        QMessageBox::StandardButton porDefecto;
        QMessageBox::StandardButtons botones;
    };

    ConductorMensajes()
    {
        mensajes::observar([this](QMessageBox &caja) { atender(caja); });
    }
    ~ConductorMensajes()
    {
        mensajes::observar({});
        if (!m_respuestas.isEmpty())
            QTest::qFail("a message box that was expected did not appear", __FILE__, __LINE__);
    }
    ConductorMensajes(const ConductorMensajes &) = delete;
    ConductorMensajes &operator=(const ConductorMensajes &) = delete;

    /// Queues the button to press in the next box.
    void responder(QMessageBox::StandardButton boton) { m_respuestas.append(boton); }
    /// The boxes shown since the last call.
    QList<Mostrado> tomar() { return std::exchange(m_mostrados, {}); }
    /// Text of the only box shown since the last call; empty when it was not exactly one.
    QString texto()
    {
        const auto cajas = tomar();
        return cajas.size() == 1 ? cajas.front().texto : QString();
    }
    /// The only box shown since the last call as "icon|title|text|default button".
    QString ficha()
    {
        const auto cajas = tomar();
        if (cajas.size() != 1)
            return {};
        const auto boton
            = QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKey(cajas[0].porDefecto);
        return QStringList{QVariant::fromValue(cajas[0].icono).toString(), cajas[0].titulo,
                           cajas[0].texto, QString::fromLatin1(boton)}
            .join(u'|');
    }

private:
    void atender(QMessageBox &caja)
    {
        auto *porDefecto = caja.defaultButton();
        m_mostrados.append({caja.icon(), caja.windowTitle(), caja.text(),
                            porDefecto ? caja.standardButton(porDefecto) : QMessageBox::NoButton,
                            caja.standardButtons()});
        if (m_respuestas.isEmpty())
            QTest::qFail(qPrintable(u"unexpected message: "_s + caja.text()), __FILE__, __LINE__);
        const auto respuesta
            = m_respuestas.isEmpty() ? QMessageBox::NoButton : m_respuestas.takeFirst();
        QTimer::singleShot(0, &caja, [&caja, respuesta] {
            if (auto *boton = caja.button(respuesta))
                QTest::mouseClick(boton, Qt::LeftButton);
            else
                caja.reject();
        });
    }

    QList<QMessageBox::StandardButton> m_respuestas;
    QList<Mostrado> m_mostrados;
};
