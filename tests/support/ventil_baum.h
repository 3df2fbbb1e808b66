#pragma once

#include "valve/ventil_katalog.h"

#include <stdexcept>

/// Hands each node of a list to `take` and checks the list on the way: links back and forth agree,
/// and line numbers rise. Throws std::logic_error where they do not.
template <class Node, class Take>
void ForEachNode(const Node* head, Take take)
{
    const Node* before = nullptr;
    for (const Node* node = head; node != nullptr; node = node->Next) {
        if (node->Prev != before) {
            throw std::logic_error("Prev and Next do not agree");
        }
        if (before != nullptr && before->ZeilenNr >= node->ZeilenNr) {
            throw std::logic_error("nodes are not in file order");
        }
        take(*node);
        before = node;
    }
}

template <class Node, class Take>
void ForEachNode(const CVentilListe<Node>& list, Take take)
{
    ForEachNode<Node>(list.Erster(), take);
}

/// Hands each article with its group to `take`.
template <class Take>
void ForEachArtikel(const CVentVdiKatalog& katalog, Take take)
{
    ForEachNode(katalog.ErsteHauptgruppe, [&](const VENT_VDI3805_HAUPTGRUPPE& haupt) {
        ForEachNode(haupt.Gruppen, [&](const VENT_VDI3805_GRUPPE& gruppe) {
            ForEachNode(gruppe.Artikel,
                        [&](const VENT_VDI3805_ARTIKEL& artikel) { take(gruppe, artikel); });
        });
    });
}
