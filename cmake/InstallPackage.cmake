# What `cmake --install` puts on a machine.
