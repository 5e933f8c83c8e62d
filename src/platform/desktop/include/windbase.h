/* The property database as a device's SDK declares it, as far as the program reads one. On a
   device its own header takes this one's place. */
#pragma once

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef DWORD CEPROPID;
typedef CEPROPID* PCEPROPID;
typedef DWORD CEOID;
typedef CEOID* PCEOID;

typedef struct _CEGUID {
  DWORD Data1;
  DWORD Data2;
  DWORD Data3;
  DWORD Data4;
} CEGUID, *PCEGUID;

typedef struct _CEBLOB {
  DWORD dwCount;
  LPBYTE lpb;
} CEBLOB;

typedef union _CEVALUNION {
  short iVal;
  USHORT uiVal;
  long lVal;
  ULONG ulVal;
  FILETIME filetime;
  LPWSTR lpwstr;
  CEBLOB blob;
  BOOL boolVal;
  double dblVal;
} CEVALUNION;

typedef struct _CEPROPVAL {
  CEPROPID propid;
  WORD wLenData;
  WORD wFlags;
  CEVALUNION val;
} CEPROPVAL, *PCEPROPVAL;

typedef struct _CEVOLUMEOPTIONS CEVOLUMEOPTIONS;
typedef struct _SORTORDERSPECEX SORTORDERSPECEX;
typedef struct _CENOTIFYREQUEST CENOTIFYREQUEST;

#define CEVT_I4 3
#define CEVT_LPWSTR 31
#define CEVT_AUTO_I4 102

#define CEDB_AUTOINCREMENT 0x00000001
#define CEDB_SEEK_BEGINNING 0x00000002
#define CEDB_ALLOWREALLOC 0x00000001
#define CEDB_PROPNOTFOUND 0x0100

BOOL CeMountDBVolEx(PCEGUID pGuid, LPWSTR lpwszDBVol, CEVOLUMEOPTIONS* pOptions, DWORD dwFlags);
BOOL CeUnmountDBVol(PCEGUID pGuid);
HANDLE CeOpenDatabaseInSession(HANDLE hSession, PCEGUID pGuid, PCEOID poid, LPWSTR lpwszName,
                               SORTORDERSPECEX* pSort, DWORD dwFlags, CENOTIFYREQUEST* pRequest);
CEOID CeSeekDatabaseEx(HANDLE hDatabase, DWORD dwSeekType, DWORD dwValue, WORD wNumVals,
                       LPDWORD lpdwIndex);
CEOID CeReadRecordPropsEx(HANDLE hDbase, DWORD dwFlags, LPWORD lpcPropID, CEPROPID* rgPropID,
                          LPBYTE* lplpBuffer, LPDWORD lpcbBuffer, HANDLE hHeap);

#ifdef __cplusplus
}
#endif
