#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>

/// What the fuzz targets and their replay in the tests run over arbitrary bytes. Exceptions of the
/// framework are part of the bargain and stay inside; anything else that leaves is a fault.

/// The bytes as a maker's valve file: loads it and evaluates every article.
void RunVentilKatalog(std::span<const std::uint8_t> bytes);

/// The bytes as a radiator catalogue: parses it and builds the rows of every product.
void RunCatalogue(std::span<const std::uint8_t> bytes);

/// The bytes as an archive of a record. The first byte chooses the record, and whether the rest is
/// the whole archive or the payload of a sound one.
void RunArchive(std::span<const std::uint8_t> bytes);

/// The bytes as a line file: its lines, written and read again, are the same.
void RunTextFile(std::span<const std::uint8_t> bytes);

/// The bytes as a connection point text: what is built from its numbers reads back the same.
void RunPunktText(std::span<const std::uint8_t> bytes);

/// The bytes as a short list of connection types: reads it and works on every entry.
void RunKurzliste(std::span<const std::uint8_t> bytes);

/// The bytes as a DXF file: its blocks are sound, and written and read again the same.
void RunDxfBlocks(std::span<const std::uint8_t> bytes);

/// The bytes as the file of the heating systems: takes every entry apart, and none of those written
/// gets lost.
void RunHeizsysteme(std::span<const std::uint8_t> bytes);

/// The bytes as the file of placements: a place kept in it comes back.
void RunPlatzierung(std::span<const std::uint8_t> bytes);

/// The bytes as the file of settings: what is stored in it comes back, and nothing else changes.
void RunSettings(std::span<const std::uint8_t> bytes);

/// The bytes as a record of the last selection. The first byte chooses the record, and whether the
/// rest is the whole file or the payload of a sound one; what is stored in its place comes back.
void RunDefFile(std::span<const std::uint8_t> bytes);

/// The bytes as a building: one that is read is the same when it is written and read again.
void RunBuilding(std::span<const std::uint8_t> bytes);

/// Throws std::logic_error with this text unless `holds`.
inline void Require(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}
