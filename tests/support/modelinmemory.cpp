#include "modelinmemory.h"

#include "moxreader.h"

void OpenInMemory(model& owner, const MoxBuilder& file) {
    owner.Files.assign(kFileSlots, FileRecord{});
    owner.Files[0] = ReadMoxBytes(file.Build(), "MEMORYF.MOX", 0);
    owner.m_currmox = 0;
    owner.m_currnode = 0;
    owner.M_Type = kMoxLoaded;
}
