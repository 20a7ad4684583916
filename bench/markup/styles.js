// The styles of elements: the one that an element has of its own, and the runtime style that is laid over it. The engine
// has no such thing, so what is laid over takes the place of the element's own, which is remembered.
(() => {
    "use strict";

    const overlays = new WeakMap(); // by element, then by property: the own value and the one laid over it

    const set = (element, name, value, priority) => {
        element.style.removeProperty(name);
        element.style.setProperty(name, value, priority);
    };

    bench.getStyle = (number, name, isRuntime) => {
        const element = bench.element(number);
        const overlay = overlays.get(element)?.get(name);
        if (isRuntime)
            return overlay?.value ?? "";
        return overlay ? overlay.own : element.style[name];
    };

    bench.putStyle = (number, name, value, isRuntime) => {
        const element = bench.element(number);
        const overlay = overlays.get(element)?.get(name);
        if (isRuntime) {
            const own = bench.getStyle(number, name, false);
            overlays.set(element, (overlays.get(element) ?? new Map()).set(name, { own, value }));
            set(element, name, value || own, value ? "important" : "");
        } else if (overlay?.value)
            overlay.own = value;
        else
            element.style[name] = value;
    };
})();
