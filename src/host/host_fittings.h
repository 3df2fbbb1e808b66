#pragma once

#include "host/drawing_records.h"
#include "platform/export.h"
#include "platform/text.h"

/// HostFittings: the host's library of connection points. A connection point text holds numbers
/// separated by ";", with any blanks (space, tab) beside a number: relative x, offset x, relative
/// y, offset y, relative z, offset z, first angle, second angle; then side distance, cross-over
/// distance, cross-over kind and wall distance, which may be missing. Offsets and distances are
/// metres, angles degrees. frame/conn_values.h tells what they mean.

/// Parses a connection point text into the targets. Returns the count of values read, 0 to 12, and
/// with 0 touches no target. Values that the text does not have are delivered as 0; the third angle
/// always is.
///
/// Values are read in their order. The first piece between separators that does not begin with a
/// number, as _wtof() of platform/number_scan.h reads it, ends the reading: an empty one, a word,
/// or a number beyond the range of a double. What follows a number in its piece is ignored, and so
/// is all behind the twelfth. The cross-over kind is cut to a whole number within the range of int.
HOST_API int lmGet_K_APUNKT_X(const CString& text, double position[3], double offset[3],
                              double winkel[3], double& seitAbstand, double& kreuzAbstand,
                              int& kreuzTyp, double& wandAbstand);

/// Builds the text of a connection point, all twelve values and fewer than 512 characters.
/// lmGet_K_APUNKT_X reads every finite value back bit for bit. Not-a-number and infinity are no
/// place on a radiator and are written as 0. The third angle is not written.
HOST_API void lmSet_K_APUNKT_X(CString& text, const double position[3], const double offset[3],
                               const double winkel[3], double seitAbstand, double kreuzAbstand,
                               int kreuzTyp, double wandAbstand);

/// Most points that lmGet_K_APUNKT_BLOCK_Wc delivers.
inline constexpr int kMaxAnschlussPunkte = 50;

/// Evaluates the attributes of a drawn radiator to connection points in the drawing, in its units.
/// Each attribute "H_VL_PUNKT" is a flow point and each "H_RL_PUNKT" a return point, as connection
/// point texts; "H_LAENGE", "H_TIEFE" and "H_HOEHE" are the radiator's size along x, y and z in
/// metres, of which a missing one counts as 0. `attribute` may be null; `trafo` places the
/// radiator's middle and its axes.
///
/// Writes n points, at most kMaxAnschlussPunkte, to `punkte` and returns n: first the connections,
/// all flow points before all return points and each kind in the order of its attributes, then as
/// many pipe ends in the same order. A pipe end is what the pipe of a connection is drawn to: the
/// connection moved by its side distance in its direction, and otherwise its equal. So n is even,
/// and whoever wants connections only takes the first n / 2. Attributes without a readable point
/// are left out; connections beyond the 25th too.
///
/// `gewerk` restricts the points to one trade and `name` to the attributes of one name; 0 and an
/// empty text ask for all.
HOST_API int lmGet_K_APUNKT_BLOCK_Wc(ALIST* attribute, LM_APUNKT* punkte, LM_TRAFO* trafo,
                                     TgaGewerk gewerk, const CString& name);
