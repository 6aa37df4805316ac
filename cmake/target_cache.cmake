# The folder in which scripts/target keeps what it made or fetched once on this machine.
if(DEFINED ENV{XDG_CACHE_HOME})
  set(target_cache $ENV{XDG_CACHE_HOME}/tavik)
else()
  set(target_cache $ENV{HOME}/.cache/tavik)
endif()
