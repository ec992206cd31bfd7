#pragma once

namespace ovanta {

/// Where the desktop shows that the program runs. `regular` has an entry among the running
/// applications: the Dock and the switcher of a Mac, elsewhere the task bar and the pager.
/// `accesoria` has none, and is reached by its status icon.
class PoliticaActivacion
{
public:
    enum class Politica { regular, accesoria };

    virtual ~PoliticaActivacion() = default;

    /// In effect at once, for the windows that are open and those to come; none opens or closes by
    /// it. Until the first call the policy is `regular`. Does nothing on a desktop that leaves
    /// programs no say in this. Main thread.
    virtual void fijar(Politica politica) = 0;
};

} // namespace ovanta
