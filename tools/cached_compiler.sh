#!/bin/sh
# Compiles through ccache: cached_compiler.sh COMPILER ARGUMENT... Precompiled headers are always made anew, since those of clang name
# the folder that they were made in. What a source includes is known from the compiler's own list afterwards (CCACHE_DEPEND):
# preprocessing each source for it beforehand takes a third of a build.
case " $* " in
  *" -emit-pch "* | *" c++-header "*) exec "$@" ;;
esac
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime CCACHE_PCH_EXTSUM=1 CCACHE_DEPEND=1
exec ccache "$@"
