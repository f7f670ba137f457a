#pragma once

#include <QHash>
#include <QTranslator>

/// Style, palette and letter size of the whole program.
void aplicarEstilo();

/// The texts of Qt's own that users meet (file and printer dialogues, menus of the boxes, tips of
/// the inner frames), in the session's language. Our texts do not pass through here.
class TextosQt : public QTranslator
{
    Q_OBJECT

public:
    TextosQt();

    bool isEmpty() const override { return m_textos.isEmpty(); }
    QString translate(const char *contexto, const char *texto, const char *, int) const override;

private:
    QHash<QByteArray, std::pair<QString, QString>> m_textos; ///< English to Castilian and Basque
};
