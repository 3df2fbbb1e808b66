#include "tests/fuzz/corpus_replay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The kept inputs of a target, in an order that does not depend on the file system.
std::vector<Bytes> Corpus(const CFuzzTarget& target)
{
    const std::string folder = std::string(RADSEL_FUZZ_CORPUS_DIR "/") + target.lpszName;
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<Bytes> corpus;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return corpus;
}

/// Changes inputs in the ways that find faults in readers: bytes changed, cut out, doubled, or
/// replaced by what another input has in their place.
class CMutator
{
public:
    explicit CMutator(std::vector<Bytes> corpus) : m_corpus(std::move(corpus)) {}

    Bytes Next()
    {
        Bytes bytes = Pick();
        for (std::size_t changes = 1 + Below(4); changes > 0; --changes) {
            Change(bytes);
        }
        return bytes;
    }

private:
    std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : m_random() % limit; }

    const Bytes& Pick() { return m_corpus[Below(m_corpus.size())]; }

    void Change(Bytes& bytes)
    {
        static constexpr std::uint8_t kTelling[] = {0,   255, ';', '\r', '\n',
                                                    '0', '9', '-', '.',  ' '};
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(Below(bytes.size()));
        const std::size_t rest = static_cast<std::size_t>(bytes.end() - from);
        const auto to = from + static_cast<std::ptrdiff_t>(Below(std::min<std::size_t>(rest, 40)));
        switch (Below(5)) {
        case 0:
            if (from != bytes.end()) {
                *from = static_cast<std::uint8_t>(m_random());
            }
            break;
        case 1:
            bytes.insert(from, kTelling[Below(std::size(kTelling))]);
            break;
        case 2:
            bytes.erase(from, to);
            break;
        case 3: {
            const Bytes piece(from, to);
            bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(Below(bytes.size())),
                         piece.begin(), piece.end());
            break;
        }
        default: {
            const Bytes& other = Pick();
            const std::size_t start = Below(other.size());
            const std::size_t end = std::min(other.size(), start + 40);
            bytes.insert(bytes.erase(from, to), other.begin() + static_cast<std::ptrdiff_t>(start),
                         other.begin() + static_cast<std::ptrdiff_t>(end));
        }
        }
    }

    std::vector<Bytes> m_corpus;
    // The same inputs in every run.
    std::mt19937 m_random{20240301};
};

std::string Printable(const Bytes& bytes)
{
    return testing::PrintToString(std::string(bytes.begin(), bytes.end()));
}

} // namespace

void ReplayCorpus(const CFuzzTarget& target)
{
    const std::vector<Bytes> corpus = Corpus(target);
    ASSERT_FALSE(corpus.empty());
    for (const Bytes& bytes : corpus) {
        ASSERT_NO_THROW(target.run(bytes)) << Printable(bytes);
    }
    CMutator mutator(corpus);
    for (int i = 0; i < target.nMutations; ++i) {
        const Bytes bytes = mutator.Next();
        ASSERT_NO_THROW(target.run(bytes)) << Printable(bytes);
    }
}
