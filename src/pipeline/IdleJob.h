#pragma once

namespace tavrin {

/// Work for the idle moments of the loop (batch, galleries), done in steps. The loop takes one step at a time, of the
/// first job that is on, and looks for a newer request in between. Both are called on the loop's thread only.
class IdleJob {
  public:
    virtual ~IdleJob() = default;

    /// Whether there is something to do, or to wait for. Asked ten times a second, so it looks at memory alone.
    virtual bool isOn() const = 0;
    /// One step. It never waits: what is not ready yet is looked at again at the next step. A step that only looks
    /// takes milliseconds, one that saves a picture as long as that takes. It may ask for a picture (`StartUpdate`),
    /// and is then called again when it stands.
    virtual void step() = 0;
};

}  // namespace tavrin
