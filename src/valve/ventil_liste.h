#pragma once

#include "valve/ventil_satz.h"

#include <memory>

struct VENT_VDI3805_GRUPPE;

/// The first node of a list of a group, to be used like a pointer to it. The nodes themselves are
/// made the first time that somebody asks, since a file has a hundred of them for each that is ever
/// looked at, and they take more room than the lines that they tell of.
template <class Node>
class CVentilListe
{
public:
    /// The list of this kind of record; a group only makes lists of itself.
    CVentilListe(const VENT_VDI3805_GRUPPE& gruppe, VentilSatz satz)
        : m_gruppe(gruppe), m_satz(satz)
    {
    }

    CVentilListe(const CVentilListe&) = delete;
    CVentilListe& operator=(const CVentilListe&) = delete;

    /// Null if the list is empty.
    Node* Erster() const;

    // Callers take it for the link that it stands for.
    operator Node*() const { return Erster(); } // NOLINT(google-explicit-constructor)
    Node* operator->() const { return Erster(); }

    /// One more record of this kind has been read for the group.
    void Zaehle() { ++m_nAnzahl; }

private:
    const VENT_VDI3805_GRUPPE& m_gruppe;
    VentilSatz m_satz;
    int m_nAnzahl = 0;
    mutable std::unique_ptr<Node[]> m_knoten;
};
