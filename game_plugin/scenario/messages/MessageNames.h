#pragma once

namespace script::messages {

// The module's own messages. Scripts and other plug-ins count on their texts.

/// A mouse click command was executed: filter 1 the hash of its name.
inline constexpr const char* COMMAND_USED = "script::CommandUsed";
/// Somebody has used equipment: filter 1 who, filter 2 on what; parameter "Message" a std::string.
inline constexpr const char* USE_EQUIPMENT = "script::UseEquipment";
/// Filter 1 the hash of the id that ScenarioActivateTriggerMessageArrived waits for; parameter "units" a std::string,
/// ids with commas between them.
inline constexpr const char* TRIGGER_ACTIVATOR = "Scenario::TriggerActivator";
/// A simulated key: filter 1 is not 0 if it is pressed; parameter "hotkey" a std::string, its name.
inline constexpr const char* HOTKEY = "SCENARIO::HotkeyMessage";
/// The editor's reload of all scripts.
inline constexpr const char* RELOAD_IN_EDITOR = "script::ForceHotReload_EditorOnly";

inline constexpr const char* ALL[] = {COMMAND_USED, USE_EQUIPMENT, TRIGGER_ACTIVATOR, HOTKEY, RELOAD_IN_EDITOR};

}
