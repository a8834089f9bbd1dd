#pragma once

/// Marks a class whose vtable, type information and inline statics the host and its plug-ins must share.
#define QSF_API __attribute__((visibility("default")))
