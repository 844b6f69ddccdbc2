"""A session manager as X11 desktops have one, by the libraries that the program speaks to it with."""

import ctypes
import select
import threading


class Unavailable(Exception):
    """There can be no such session here."""


SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE, INTERACT_ANY = 0, 2
CONNECT_PENDING = 0
IO_ERROR = 1
ALL_CALLBACKS = 0x3FF

Pointer = ctypes.c_void_p
Done = ctypes.CFUNCTYPE(None, Pointer, Pointer, ctypes.c_int)
Register = ctypes.CFUNCTYPE(ctypes.c_int, Pointer, Pointer, ctypes.c_char_p)
Close = ctypes.CFUNCTYPE(None, Pointer, Pointer, ctypes.c_int, Pointer)
Any = ctypes.CFUNCTYPE(None, Pointer, Pointer)
NewClient = ctypes.CFUNCTYPE(ctypes.c_int, Pointer, Pointer, ctypes.POINTER(ctypes.c_ulong),
                             ctypes.POINTER(Pointer), ctypes.POINTER(ctypes.c_char_p))
Broken = ctypes.CFUNCTYPE(None, Pointer)
Allow = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_char_p)


class SessionManager:
    """Serves one client after the other, on a thread of its own: a client's start waits for the answers. One for the
    process, as the libraries have it."""

    def __init__(self):
        try:
            self.ice = ctypes.CDLL("libICE.so.6")
            self.sm = ctypes.CDLL("libSM.so.6")
        except OSError as failure:
            raise Unavailable(str(failure)) from failure
        for function in (self.ice.IceAcceptConnection, self.ice.IceComposeNetworkIdList, self.sm.SmsGenerateClientID):
            function.restype = Pointer
        self.client = None
        self.connection = None
        self.saved = 0  # how often the client has said that it has saved itself
        self.interactions = 0  # how often it wanted to ask the user

        # They stay alive with this object: the library keeps their addresses. In the library's order.
        self.callbacks = [Register(self.on_register), Done(self.on_interact), Done(lambda *_: None),
                          Any(lambda *_: None), Any(self.on_phase2), Done(self.on_saved), Close(self.on_close),
                          Done(lambda *_: None), Done(lambda *_: None), Any(lambda *_: None)]
        self.on_new = NewClient(self.on_new_client)
        self.allow = Allow(lambda _: 1)
        # A client that has gone without a word, which would end this process.
        self.broken = Broken(lambda _: None)
        self.ice.IceSetIOErrorHandler(self.broken)
        error = ctypes.create_string_buffer(256)
        if not self.sm.SmsInitialize(b"test", b"1", self.on_new, None, self.allow, len(error), error):
            raise Unavailable(error.value.decode())
        count = ctypes.c_int()
        listening = ctypes.POINTER(Pointer)()
        if not self.ice.IceListenForConnections(ctypes.byref(count), ctypes.byref(listening), len(error), error):
            raise Unavailable(error.value.decode())
        self.listening = [Pointer(listening[i]) for i in range(count.value)]
        for one in self.listening:
            self.ice.IceSetHostBasedAuthProc(one, self.allow)
        ids = self.ice.IceComposeNetworkIdList(count, listening)
        self.address = ctypes.string_at(ids).decode()
        # The libraries are for one thread at a time.
        self.lock = threading.Lock()
        self.open = True
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()
        self.free = lambda: self.ice.IceFreeListenObjs(count, listening)

    def close(self):
        self.open = False
        self.thread.join()
        self.free()

    def on_new_client(self, client, _, mask, callbacks, __):
        self.client = Pointer(client)
        self.saved = self.interactions = 0
        mask[0] = ALL_CALLBACKS
        # Pairs of a function and its data.
        for i, callback in enumerate(self.callbacks):
            callbacks[2 * i] = ctypes.cast(callback, Pointer)
            callbacks[2 * i + 1] = None
        return 1

    def on_register(self, client, _, previous):
        if previous:
            return 0
        self.sm.SmsRegisterClientReply(Pointer(client), Pointer(self.sm.SmsGenerateClientID(Pointer(client))))
        # As a manager must with one that it has not known before.
        self.sm.SmsSaveYourself(Pointer(client), SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def on_interact(self, client, _, __):
        self.interactions += 1
        self.sm.SmsInteract(Pointer(client))

    def on_phase2(self, client, _):
        self.sm.SmsSaveYourselfPhase2(Pointer(client))

    def on_saved(self, *_):
        self.saved += 1

    def on_close(self, *_):
        self.hang_up()

    def hang_up(self):
        if self.client:
            self.sm.SmsCleanUp(self.client)
        self.ice.IceSetShutdownNegotiation(self.connection, 0)
        self.ice.IceCloseConnection(self.connection)
        self.client = self.connection = None

    def serve(self):
        while self.open:
            numbers = {self.ice.IceGetListenConnectionNumber(one): one for one in self.listening}
            if self.connection:
                numbers[self.ice.IceConnectionNumber(self.connection)] = None
            for ready in select.select(list(numbers), [], [], 0.05)[0]:
                with self.lock:
                    self.take(numbers[ready])

    def take(self, caller):
        if caller is None:
            if self.ice.IceProcessMessages(self.connection, None, None) == IO_ERROR:
                self.hang_up()
            return
        status = ctypes.c_int()
        self.connection = Pointer(self.ice.IceAcceptConnection(caller, ctypes.byref(status)))
        while self.ice.IceConnectionStatus(self.connection) == CONNECT_PENDING:
            self.ice.IceProcessMessages(self.connection, None, None)

    def ask_to_save(self):
        """The session is to end."""
        with self.lock:
            self.sm.SmsSaveYourself(self.client, SAVE_BOTH, 1, INTERACT_ANY, 0)

    def end(self):
        with self.lock:
            self.sm.SmsDie(self.client)

    def call_off(self):
        with self.lock:
            self.sm.SmsShutdownCancelled(self.client)
