#pragma once

#include <optional>

#include "key/refine/finish/RefineTaste.h"
#include "key/refine/grid/CellRows.h"
#include "key/refine/subject/Detail.h"

namespace tavrin::refine {

/// All that is known when the last pass begins.
struct Findings {
    const Shot& shot;
    const Plate& plate;
    const Separation& separation;
    const Mask& solid;
    const Mask& open;   ///< neither well inside nor well on the screen
    const Mask& marks;  ///< small things on the screen, which are to be gone
    const AlphaPlane& alpha;
    RefineTaste taste;
    float missingDetail = 0.0f;
    float nearNoise = 0.0f;  ///< of alpha on bare screen beside the subject
};

/// Where the subject is not far: 1 there, 0 far away, on cells of `size` pixels. Elsewhere creases, marks and lines
/// of the floor are held back unless the key has them too.
struct Reach {
    Cells near;
    int size = 1;
};
Reach findReach(const RunContext& context, const Findings& findings);

/// How much alpha strays by the plate alone, which knows steps of light (folds, the line between wall and floor) as
/// far as its cells do: as `quieten` has its noise, on the plate's cells.
Cells unrestOf(const RunContext& context, const Plate& plate);

/// How far the key's alpha is to be trusted where it has more than the fit: a rim that the screen has tinted, or that
/// brought the light of an old backdrop along, is of no colour that the inside has, and the fit takes it for screen.
struct Trust {
    Cells key;      ///< 1, or less for a subject of the opposite colour, which the key takes for whole too early
    Cells subject;  ///< luma of the subject around; both on the separation's cells
    Cells screen;   ///< luma of the plate, on its cells
};
Trust trustInKey(const RunContext& context, const Findings& findings);

/// The final alpha of a strip's rows. For one thread.
class FinishRows {
  public:
    FinishRows(const Findings& findings, const Reach& reach, const Cells& unrest, const Trust& trust,
               const Strip& strip);

    /// @param alpha 0 to 1
    void fill(int y, float* alpha);
    /// Alpha that the colours are unmixed with: before the detail, the noise and the settings. The strip's rows.
    void fillPlain(int y, float* alpha);
    const Strip& strip() const { return strip_; }
    /// Columns beyond those asked for that the windows look at.
    static int halo(const Findings& findings) { return findings.missingDetail > 0.0f ? kDetailHalo : 2; }

  private:
    using Maker = std::function<void(int, float**)>;

    void fillMeans(int y, float* means);
    void heedKey(int y, const float* means, float usual, float* alpha);
    void quieten(int y, const float* means, float* alpha);
    void holdBack(int y, float* alpha);
    void shape(const float* means, float* alpha) const;

    const Findings& findings_;
    Strip strip_;
    float noise_, lineNoise_;
    std::optional<DetailRows> detail_;  // where alpha lacks any
    RowRing<1, Maker> alphas_, keys_;
    CellRows near_, unrest_, trust_, subject_, screen_;
    PaddedRows scratch_;
};

/// Alpha before the detail: levels alone, and 1 inside. `scratch` has room for a row.
void plainAlpha(const Findings& findings, const Strip& strip, int y, float* scratch, float* alpha);

}  // namespace tavrin::refine
