target_sources(QuorvelApi1Objects PRIVATE
    access/AspCpeFacadeObject.cpp
    access/AspCpeFacadeObjectRehearsal.cpp
    access/AspCpeFlyweightFactory.cpp
    access/AspFacade.cpp
    access/ReplyReading.cpp)
