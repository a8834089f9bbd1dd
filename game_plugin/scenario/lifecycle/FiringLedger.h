#pragma once

namespace script {

struct MapScriptEntry;

/// How often the triggers of configured scripts have fired, over all managers of one run of the host: tools show counts
/// that a reload doesn't set back. Triggers are known by script and name, so a script may be edited in between.
class FiringLedger {
public:
  /// Notes the counts of a script that is given up. Temporary scripts are not noted.
  static void store(const MapScriptEntry& entry);
  /// Gives a script that was read anew the counts noted before.
  static void restore(MapScriptEntry& entry);
  /// Forgets all counts; called at the start of a run.
  static void clear();
};

}
