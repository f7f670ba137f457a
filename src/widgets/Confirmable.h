#pragma once

/// A field that holds what is typed until it is left or told to hand it over.
class Confirmable
{
public:
    virtual ~Confirmable() = default;
    /// Hands over what the user typed, if anything; false when it was refused (the user has been
    /// told), and then the text stays and the field takes the focus back.
    virtual bool confirmar() = 0;
};

/// Marks a button of the sort "cancel": clicking it leaves the field with the focus as it is, so
/// that a wrong text in it cannot stand between the user and the way out.
inline constexpr const char *NoConfirma = "noConfirma";
