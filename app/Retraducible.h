// Retraducible: what a window offers whose texts follow the language.
#pragma once

class Retraducible
{
public:
    virtual ~Retraducible() = default;

    // Every text again, in the present language. What the user typed and what was computed stay.
    virtual void Retraducir() = 0;
};
