#include "host_defaults/answers.h"
#include "platform/number_scan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace host_defaults {

namespace {

using Vector = std::array<double, 3>;

/// Each connection takes a second place for its pipe end.
constexpr std::size_t kMaxConnections = kMaxAnschlussPunkte / 2;

struct CPunktAttribut
{
    const wchar_t* lpszName;
    TgaGewerk gewerk;
};

/// In the order in which their points are delivered.
constexpr CPunktAttribut kPunktAttribute[] = {{L"H_VL_PUNKT", kGewerkVorlauf},
                                              {L"H_RL_PUNKT", kGewerkRuecklauf}};

double FindNumber(const ALIST* attribute, const wchar_t* name)
{
    while (attribute != nullptr && attribute->Name != name) {
        attribute = attribute->pNext;
    }
    return attribute != nullptr ? _wtof(attribute->Wert) : 0.0;
}

Vector FindSize(const ALIST* attribute)
{
    return {FindNumber(attribute, L"H_LAENGE"), FindNumber(attribute, L"H_TIEFE"),
            FindNumber(attribute, L"H_HOEHE")};
}

/// Exact at quarter turns: a pipe along an axis must have no stray share of the other two.
double Cosine(double degrees)
{
    const double turn = std::fabs(std::fmod(degrees, 360.0));
    return turn == 90.0 || turn == 270.0 ? 0.0 : std::cos(turn * std::numbers::pi / 180.0);
}

double Sine(double degrees)
{
    return Cosine(degrees - 90.0);
}

Vector DirectionOf(const Vector& winkel)
{
    const double level = Cosine(winkel[1]);
    return {level * Cosine(winkel[0]), level * Sine(winkel[0]), Sine(winkel[1])};
}

Vector Turned(const LM_TRAFO& trafo, const Vector& local)
{
    Vector turned{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (std::size_t i = 0; i < 3; ++i) {
            turned[i] += local[axis] * trafo.Achsen[axis][i];
        }
    }
    return turned;
}

/// A direction that the axes flatten to nothing stays nothing.
Vector Normalised(const Vector& direction)
{
    const double length = std::hypot(direction[0], direction[1], direction[2]);
    if (length == 0.0) {
        return direction;
    }
    return {direction[0] / length, direction[1] / length, direction[2] / length};
}

/// A connection in the radiator's own frame, metres.
struct CConnection
{
    Vector punkt;
    Vector richtung;
    double dSeitAbstand = 0.0;
};

/// False if the text holds no point.
bool ReadConnection(const CString& text, const Vector& size, CConnection& connection)
{
    Vector position;
    Vector offset;
    Vector winkel;
    double kreuzAbstand = 0.0;
    int kreuzTyp = 0;
    double wandAbstand = 0.0;
    if (::lmGet_K_APUNKT_X(text, position.data(), offset.data(), winkel.data(),
                           connection.dSeitAbstand, kreuzAbstand, kreuzTyp, wandAbstand) == 0) {
        return false;
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        connection.punkt[axis] = position[axis] * size[axis] + offset[axis];
    }
    connection.richtung = DirectionOf(winkel);
    return true;
}

/// The point in the drawing that lies `distance` metres off the connection in its direction.
LM_APUNKT PunktInDrawing(const CConnection& connection, double distance, const LM_TRAFO& trafo,
                         TgaGewerk gewerk)
{
    Vector local = connection.punkt;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        local[axis] += distance * connection.richtung[axis];
    }
    const Vector turned = Turned(trafo, local);
    const Vector richtung = Normalised(Turned(trafo, connection.richtung));

    LM_APUNKT punkt;
    punkt.Wert = connection.dSeitAbstand;
    for (std::size_t i = 0; i < 3; ++i) {
        punkt.Punkt[i] = trafo.Ursprung[i] + turned[i];
        punkt.Richtung[i] = richtung[i];
    }
    punkt.Gewerk = gewerk;
    return punkt;
}

} // namespace

int lmGet_K_APUNKT_BLOCK_Wc(ALIST* attribute, LM_APUNKT* punkte, LM_TRAFO* trafo, TgaGewerk gewerk,
                            const CString& name)
{
    const Vector size = FindSize(attribute);
    std::vector<LM_APUNKT> connections;
    std::vector<LM_APUNKT> pipeEnds;
    const auto add = [&](const CString& text, TgaGewerk kind) {
        CConnection connection;
        if (connections.size() < kMaxConnections && ReadConnection(text, size, connection)) {
            connections.push_back(PunktInDrawing(connection, 0.0, *trafo, kind));
            pipeEnds.push_back(PunktInDrawing(connection, connection.dSeitAbstand, *trafo, kind));
        }
    };
    for (const CPunktAttribut& kind : kPunktAttribute) {
        if ((gewerk != 0 && gewerk != kind.gewerk) || (!name.empty() && name != kind.lpszName)) {
            continue;
        }
        for (const ALIST* link = attribute; link != nullptr; link = link->pNext) {
            if (link->Name == kind.lpszName) {
                add(link->Wert, kind.gewerk);
            }
        }
    }
    std::copy(pipeEnds.begin(), pipeEnds.end(),
              std::copy(connections.begin(), connections.end(), punkte));
    return static_cast<int>(2 * connections.size());
}

} // namespace host_defaults

int lmGet_K_APUNKT_BLOCK_Wc(ALIST* attribute, LM_APUNKT* punkte, LM_TRAFO* trafo, TgaGewerk gewerk,
                            const CString& name)
{
    return host_defaults::lmGet_K_APUNKT_BLOCK_Wc(attribute, punkte, trafo, gewerk, name);
}
